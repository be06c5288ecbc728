#include "exportcommands.h"
#include "exportinvoices.h"
#include "fileanswer.h"
#include "parameterlist.h"
#include "progressline.h"
#include "sentences.h"
#include "templatestringhelper.h"

#include <QDir>

namespace {

using ExportInvoices::Request;
using ParseParameter = bool (*)(CommandContext &, const QString &key, const QString &value, Request &);

bool fileName(CommandContext &, const QString &, const QString &value, Request &request)
{
    request.fileName = QDir::fromNativeSeparators(value);
    return true;
}

bool format(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    return context.values.parsePrintFormat(key, value, request.format, true);
}

bool csvDelimiter(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    return context.values.parseCsvDelimiter(key, value, request.csvDelimiter);
}

bool writeSoap(CommandContext &, const QString &, const QString &, Request &request)
{
    request.writeSoap = true;
    return true;
}

bool script(CommandContext &, const QString &, const QString &value, Request &request)
{
    request.script = value;
    return true;
}

/** Another kind of document than the invoice's own; any other word leaves the kind. */
bool type(CommandContext &, const QString &, const QString &value, Request &request)
{
    constexpr struct {
        const char *name;
        int printType;
    } types[] = {
        {"reminder", TemplateStringHelper::reminder},
        {"receipt", TemplateStringHelper::receipt},
        {"deliveryNote", TemplateStringHelper::deliveryNote},
    };
    for (const auto &known : types) {
        if (value == QLatin1String(known.name))
            request.printType = known.printType;
    }
    return true;
}

constexpr struct {
    const char *key;
    ParseParameter parse;
} parameters[] = {
    {"filename", fileName},   {"format", format}, {"csvDelimiter", csvDelimiter},
    {"writeSoap", writeSoap}, {"script", script}, {"type", type},
};

bool applyParameter(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    const int applied = context.criteria.parseInvoiceCriteriaParam(key, value, &request.criteria);
    if (applied != 0)
        return applied > 0;
    for (const auto &parameter : parameters) {
        if (key == QLatin1String(parameter.key))
            return parameter.parse(context, key, value, request);
    }
    return context.status.failUnknownParameter(key);
}

void answerFiles(ResponseWriter &response, const QVector<ExportInvoices::File> &files)
{
    response.startResponse(QStringLiteral("OK"));
    for (const ExportInvoices::File &file : files) {
        FileAnswer::startRecord(response, file.fileName);
        if (file.invoiceId >= 0)
            response.printProperty("invoiceId", file.invoiceId);
        if (!file.exception.isEmpty())
            response.printProperty("error", Sentences::text(Failure::scriptException, file.exception));
        response.endRecord();
    }
    response.endResponse();
}

} // namespace

void parseExportInvoicesCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen() || !context.session.fetch(CachedList::settings))
        return;
    const ParameterList words = parseParameters(args);
    Request request;
    for (const auto &[key, value] : words) {
        if (!applyParameter(context, key, value, request))
            return;
    }
    std::unique_ptr<ProgressLine> line;
    request.progress = [&line](int done, int total) {
        if (!line)
            line = std::make_unique<ProgressLine>(total);
        line->show(done);
    };
    QVector<ExportInvoices::File> files;
    const bool written = ExportInvoices::run(context, request, files);
    line.reset();
    if (written)
        answerFiles(context.response, files);
}
