#include "exportcommands.h"
#include "fileanswer.h"
#include "parameterlist.h"

#include <QDir>

namespace {

/** The parameters of a list being read. */
struct Request : ExportList::Request {
    explicit Request(ExportList::Kind wanted) : kind(wanted) {}

    ExportList::Kind kind;
};

bool takesInvoiceCriteria(ExportList::Kind kind)
{
    return kind == ExportList::invoices || kind == ExportList::payments;
}

int columnNumber(const Request &request, const QString &name)
{
    return ExportList::columns(request.kind).indexOf(name);
}

bool columns(CommandContext &, const QString &, const QString &value, Request &request)
{
    const QStringList names = value.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const int number = columnNumber(request, name);
        if (number >= 0)
            request.columnFlags |= 1 << number;
    }
    return true;
}

bool sort(CommandContext &, const QString &, const QString &value, Request &request)
{
    const int number = columnNumber(request, value);
    request.sort = number >= 0 ? std::optional<int>(number) : std::nullopt; // an unknown name: the list's own order
    return true;
}

bool landscape(CommandContext &, const QString &, const QString &, Request &request)
{
    request.landscape = true;
    return true;
}

bool fileName(CommandContext &, const QString &, const QString &value, Request &request)
{
    request.fileName = QDir::fromNativeSeparators(value);
    return true;
}

bool format(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    return context.values.parsePrintFormat(key, value, request.format, false);
}

bool csvDelimiter(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    return context.values.parseCsvDelimiter(key, value, request.csvDelimiter);
}

constexpr struct {
    const char *key;
    bool (*parse)(CommandContext &, const QString &key, const QString &value, Request &);
} parameters[] = {
    {"columns", columns},   {"sort", sort},     {"landscape", landscape},
    {"filename", fileName}, {"format", format}, {"csvDelimiter", csvDelimiter},
};

bool applyParameter(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    for (const auto &parameter : parameters) {
        if (key == QLatin1String(parameter.key))
            return parameter.parse(context, key, value, request);
    }
    int applied = 0;
    if (request.kind == ExportList::payments)
        applied = context.criteria.parsePaymentCriteriaParam(key, value, &request.payments);
    if (applied == 0 && takesInvoiceCriteria(request.kind))
        applied = context.criteria.parseInvoiceCriteriaParam(key, value, &request.invoices);
    return applied == 0 ? context.status.failUnknownParameter(key) : applied > 0;
}

} // namespace

void parseExportPrintCommand(CommandContext &context, QStringList &args, ExportList::Kind kind)
{
    if (!context.session.ensureOpen() || !context.session.fetch(CachedList::settings))
        return;
    Request request(kind);
    const ParameterList words = parseParameters(args);
    for (const auto &[key, value] : words) {
        if (!applyParameter(context, key, value, request))
            return;
    }
    QString fileName;
    if (!ExportList::run(context, kind, request, fileName))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    FileAnswer::startRecord(context.response, fileName);
    context.response.endRecord();
    context.response.endResponse();
}
