#include "programstart.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <clocale>
#include <cstring>
#include <langinfo.h>

void ProgramStart::prepare()
{
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
