#include "programstart.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <langinfo.h>

namespace {

/** Standard error belongs to the user: the library's own remarks stay unsaid, the database layer's warnings do not. */
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isOurs = context.category && std::strncmp(context.category, "billora", 7) == 0;
    if (isOurs || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

} // namespace

void ProgramStart::prepare()
{
    qInstallMessageHandler(handleMessage);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

QStringList ProgramStart::arguments(int argc, char *argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

void ProgramStart::nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Orvanto"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("orvanto.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Billora"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BILLORA_VERSION));
}
