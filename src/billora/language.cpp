#include "language.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>

#include <algorithm>
#include <cstring>

// A resource in a static library is linked only when it is named; the macro does not work inside a namespace or class.
static void initTranslations() { Q_INIT_RESOURCE(translations); }

namespace {

Language::Code currentCode = Language::finnish;

/** The classes below this program whose texts reach people; those of documents stay in the documents' language. */
constexpr const char *layers[] = {"billora",
                                  "Database",
                                  "DatabaseCheck",
                                  "SQLiteDatabase",
                                  "Query",
                                  "PostgreSQLDatabase",
                                  "PostgreSQLCursor",
                                  "CSVPaymentReader",
                                  "CamtReader",
                                  "IRPReader",
                                  "PaymentFileReader",
                                  "PaymentMatcher",
                                  "ScriptedDocuments",
                                  "ScriptRunner",
                                  "PrintScriptManager",
                                  "PdfOutput",
                                  "ArchiveFile",
                                  "XmlScriptEnvironment"};

class LayerTranslator : public QTranslator {
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isOurs = std::any_of(std::begin(layers), std::end(layers),
                                        [context](const char *known) { return std::strcmp(known, context) == 0; });
        return isOurs ? QTranslator::translate("billora", source) : QString();
    }
};

} // namespace

bool Language::isKnown(const QString &word) { return word == QLatin1String("fi") || word == QLatin1String("en"); }

Language::Code Language::choose(const QString &option, const QString &environment, const QString &setting)
{
    for (const QString &word : {option, environment, setting}) {
        if (isKnown(word))
            return word == QLatin1String("fi") ? finnish : english;
    }
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray locale = qgetenv(variable);
        if (!locale.isEmpty())
            return locale.startsWith("fi") ? finnish : english;
    }
    return english;
}

static LayerTranslator &theTranslator()
{
    static LayerTranslator translator;
    return translator;
}

void Language::renew()
{
    if (currentCode == english)
        QCoreApplication::installTranslator(&theTranslator());
}

void Language::use(Code code)
{
    LayerTranslator &translator = theTranslator();
    if (code == currentCode)
        return;
    currentCode = code;
    if (code == finnish) {
        QCoreApplication::removeTranslator(&translator);
        return;
    }
    if (translator.isEmpty()) {
        initTranslations();
        if (!translator.load(QStringLiteral(":/translations/billora_en.qm")))
            return;
    }
    QCoreApplication::installTranslator(&translator);
}

Language::Code Language::current() { return currentCode; }

QString Language::name() { return currentCode == finnish ? QStringLiteral("fi") : QStringLiteral("en"); }
