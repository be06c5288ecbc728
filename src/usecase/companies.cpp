#include "companies.h"

#include "database.h"
#include "databaselist.h"
#include "registry.h"
#include "settings.h"
#include "usecasecontext.h"

#include <QFileInfo>
#include <QRegExp>

#include <algorithm>

namespace {

bool matches(const QString &text, const QString &pattern)
{
    return QRegExp(pattern, Qt::CaseInsensitive, QRegExp::WildcardUnix).exactMatch(text);
}

} // namespace

bool Companies::isPattern(const QString &text)
{
    const bool hasSign = std::any_of(text.begin(), text.end(), [](QChar c) {
        return c == QLatin1Char('*') || c == QLatin1Char('?') || c == QLatin1Char('[');
    });
    return hasSign && !QFileInfo::exists(text);
}

bool Companies::isMatch(const QVariantMap &entry, const QString &pattern)
{
    const QFileInfo file(entry.value(QStringLiteral("filename")).toString());
    const QStringList names = {QString::number(DatabaseList::number(entry)), file.fileName(), file.completeBaseName(),
                               file.filePath(), entry.value(QStringLiteral("databaseName")).toString()};
    return std::any_of(names.begin(), names.end(), [&](const QString &name) { return matches(name, pattern); });
}

bool Companies::isNameMatch(const QString &sellerName, const QString &pattern) { return matches(sellerName, pattern); }

bool Companies::look(UseCaseContext &context, const QVariantMap &entry, Look &look)
{
    DatabaseSession &session = context.session;
    session.setLook(true);
    const bool isOpen = session.openEntry(entry) && session.fetch(CachedList::settings);
    session.setLook(false);
    if (isOpen) {
        look.sellerName = session.registry().settings()->sellerName;
        look.version = session.database()->foundVersion();
    }
    session.closeDatabase();
    return isOpen;
}

bool Companies::upgrade(UseCaseContext &context, const QVariantMap &entry, Upgrade &result)
{
    Look found;
    if (!look(context, entry, found))
        return false;
    result = {found.sellerName, found.version, found.version};
    if (found.version < 1 || found.version >= Database::schemaVersion)
        return true;
    if (!context.session.isTrial()) {
        const bool isOpen = context.session.openEntry(entry);
        context.session.closeDatabase();
        if (!isOpen)
            return false;
    }
    result.after = Database::schemaVersion;
    return true;
}
