#include "findingtexts.h"

#include "language.h"

QString FindingTexts::sentence(const EInvoice::Finding &finding)
{
    return Language::current() == Language::english ? finding.english : finding.finnish;
}

QString FindingTexts::reason(const EInvoice::Finding &finding)
{
    return QLatin1String(finding.rule) + QLatin1String(": ") + sentence(finding);
}

QStringList FindingTexts::errors(const QVector<EInvoice::Finding> &findings)
{
    QStringList reasons;
    for (const EInvoice::Finding &finding : findings) {
        if (finding.severity == EInvoice::Severity::error)
            reasons.append(reason(finding));
    }
    return reasons;
}
