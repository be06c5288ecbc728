#include "exportfilename.h"

#include "templatestringhelper.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

constexpr int maxBytes = 240; // of 255, to leave room for a number

QString cutToBytes(QString text, int limit)
{
    while (text.toUtf8().size() > limit)
        text.chop(text.at(text.size() - 1).isLowSurrogate() ? 2 : 1);
    return text;
}

/** Names that Windows gives to devices; files are carried there. */
bool isDeviceName(const QString &name)
{
    const QString baseName = name.section(QLatin1Char('.'), 0, 0).trimmed();
    static const QRegularExpression devices(QStringLiteral("^(CON|PRN|AUX|NUL|COM\\d|LPT\\d)$"),
                                            QRegularExpression::CaseInsensitiveOption);
    return devices.match(baseName).hasMatch();
}

} // namespace

QString ExportFileName::legalName(const QString &name)
{
    QString legal;
    for (const QChar c : name) {
        if (c != QLatin1Char('/') && c.unicode() >= 32 && c.unicode() != 127)
            legal += c;
    }
    const QFileInfo info(legal);
    QString suffix = info.suffix();
    if (!suffix.isEmpty() && suffix.size() < maxBytes / 2)
        suffix.prepend(QLatin1Char('.'));
    else
        suffix.clear();
    QString base = legal.left(legal.size() - suffix.size());
    if (isDeviceName(base))
        base.prepend(QLatin1Char('_'));
    if (base.isEmpty() || base == QLatin1String(".") || base == QLatin1String(".."))
        base += QLatin1Char('_');
    return cutToBytes(base, maxBytes - suffix.toUtf8().size()) + suffix;
}

QString ExportFileName::make(const QString &form, const Invoice &invoice, const Customer *customer, int kind)
{
    QStringList steps = form.split(QLatin1Char('/'));
    for (QString &step : steps) {
        if (step.contains(QLatin1Char('$')))
            step = legalName(TemplateStringHelper::substituteShortVariables(step, &invoice, customer, kind));
    }
    const QString name = steps.join(QLatin1Char('/'));
    const QFileInfo info(name);
    if (!info.isFile())
        return name;
    const QFileInfo suffixed = TemplateStringHelper::addSuffixToFilename(info);
    return steps.size() > 1 ? suffixed.filePath() : suffixed.fileName(); // without a "./" that nobody wrote
}
