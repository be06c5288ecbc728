#include "prompt.h"

#include "inputline.h"
#include "terminal.h"
#include "texts.h"

#include <QTextCodec>

#include <termios.h>
#include <unistd.h>

namespace {

void show(const QString &question)
{
    Terminal::write(STDERR_FILENO, QTextCodec::codecForLocale()->fromUnicode(question));
}

bool readLine(QString &line)
{
    static InputLine input(STDIN_FILENO); // keeps what was typed ahead
    return input.read(line);
}

} // namespace

bool Prompt::agrees(const QString &question)
{
    show(question + text(TEXT(" [k/E] ")));
    QString answer;
    if (!readLine(answer))
        return false;
    answer = answer.trimmed().toLower();
    return answer == QLatin1String("y") || answer == QLatin1String("yes") || answer == QLatin1String("k") ||
           answer == QString::fromUtf8("kyll\u00e4");
}

bool Prompt::agreesByNumber(const QString &question, int count)
{
    show(question + text(TEXT(" Kirjoita määrä %1 vahvistukseksi: ")).arg(count));
    QString answer;
    return readLine(answer) && answer.trimmed() == QString::number(count);
}

Prompt::Outcome Prompt::ask(const QString &question, const QString &preset, QString &result)
{
    show(preset.isEmpty() ? question + QStringLiteral(": ")
                          : question + QStringLiteral(" [") + preset + QStringLiteral("]: "));
    QString answer;
    if (!readLine(answer))
        return ended;
    answer = answer.trimmed();
    if (answer == QLatin1String("<"))
        return back;
    result = answer.isEmpty() ? preset : answer;
    return answered;
}

Prompt::Outcome Prompt::askSecret(const QString &question, QString &result)
{
    termios before = {};
    const bool isTerminal = ::tcgetattr(STDIN_FILENO, &before) == 0;
    if (isTerminal) {
        termios silent = before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    const Outcome outcome = ask(question, QString(), result);
    if (isTerminal) {
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
        show(QStringLiteral("\n"));
    }
    return outcome;
}
