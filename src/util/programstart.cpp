#include "programstart.h"

#include "localetext.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

namespace {

/** Standard error belongs to the user: the library's own remarks stay unsaid, the database layer's warnings do not. */
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isOurs = context.category && std::strncmp(context.category, "billora", 7) == 0;
    if (isOurs || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

/** A closed descriptor would be the next file's, and what the program says would go into it. */
void openClosedDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) == -1 && errno == EBADF)
            ::open("/dev/null", descriptor == STDIN_FILENO ? O_RDONLY : O_WRONLY); // takes the lowest one: this
    }
}

} // namespace

void ProgramStart::prepare()
{
    openClosedDescriptors();
    qInstallMessageHandler(handleMessage);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // whatever a desktop sets for its windows: documents have none
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

QStringList ProgramStart::arguments(int argc, char *argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(LocaleText::decode(argv[i], static_cast<int>(std::strlen(argv[i]))));
    return words;
}

void ProgramStart::nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Orvanto"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("orvanto.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Billora"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BILLORA_VERSION));
}
