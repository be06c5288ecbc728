#include "programstart.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <langinfo.h>

namespace {

/** Standard error belongs to the user: what the library says of a runtime folder that is never used stays unsaid. */
void handleMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths:")))
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

} // namespace

void ProgramStart::prepare()
{
    qInstallMessageHandler(handleMessage);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void ProgramStart::nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Orvanto"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("orvanto.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Billora"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BILLORA_VERSION));
}
