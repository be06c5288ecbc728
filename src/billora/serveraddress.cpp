#include "serveraddress.h"

#include "prompt.h"
#include "task.h"
#include "texts.h"

#include <QDir>
#include <QFile>
#include <QUrl>
#include <QUrlQuery>

namespace {

bool readPassword(Task &task, QVariantMap &entry)
{
    const QString key = QStringLiteral("password");
    if (task.arguments.has("passwordFile")) {
        const QString name = task.arguments.text("passwordFile");
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly))
            return task.session.fail(Failure::fileUnreadable, {name, file.errorString()});
        QString password = QString::fromUtf8(file.readAll());
        while (password.endsWith(QLatin1Char('\n')) || password.endsWith(QLatin1Char('\r')))
            password.chop(1);
        entry.insert(key, password);
        return true;
    }
    const QString own = qEnvironmentVariable("PGPASSFILE", QDir::homePath() + QLatin1String("/.pgpass"));
    const bool findsItself = qEnvironmentVariableIsSet("PGPASSWORD") || QFile::exists(own);
    if (findsItself || !task.manners.isInteractive)
        return true;
    QString password;
    if (Prompt::askSecret(text(TEXT("Tietokannan salasana (tyhjä, jos sitä ei ole)")), password) != Prompt::answered)
        return task.fail(Problem::declined, text(TEXT("mitään ei tehty")));
    if (!password.isEmpty())
        entry.insert(key, password);
    return true;
}

} // namespace

bool ServerAddress::read(Task &task, const QString &typed, QVariantMap &entry)
{
    const QString option = QStringLiteral("postgresql");
    const QUrl url(typed, QUrl::StrictMode);
    const QString database = url.path().mid(1);
    // What the client library's own addresses hold besides: a folder of sockets, several servers, encryption.
    struct {
        const char *name, *key;
        QString value;
    } values[] = {{"host", "host", url.host()},
                  {"port", "port", url.port() > 0 ? QString::number(url.port()) : QString()},
                  {"user", "username", url.userName()},
                  {"sslmode", "sslmode", QString()},
                  {"sslrootcert", "sslrootcert", QString()},
                  {"pooled", "pooled", QString()}};
    bool isKnown = true;
    const auto items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    for (const auto &item : items) {
        bool isTaken = false;
        for (auto &value : values) {
            if (item.first == QLatin1String(value.name)) {
                value.value = item.second;
                isTaken = true;
            }
        }
        isKnown = isKnown && isTaken;
    }
    const QString &pooled = values[5].value;
    isKnown = isKnown && (pooled.isEmpty() || pooled == QLatin1String("true") || pooled == QLatin1String("false"));
    const bool isRight = url.isValid() && isKnown &&
                         (url.scheme() == QLatin1String("postgresql") || url.scheme() == QLatin1String("postgres")) &&
                         !values[0].value.isEmpty() && !database.isEmpty() && !database.contains(QLatin1Char('/'));
    if (!isRight)
        return task.reader.failValue(option, typed, text(TEXT("osoite on postgresql://KÄYTTÄJÄ@PALVELIN/TIETOKANTA")));
    if (!url.password().isEmpty())
        return task.reader.failValue(option, QStringLiteral("postgresql://…"),
                                     text(TEXT("salasana näkyisi kaikille; anna se tiedostossa: --password-file")));
    entry.insert(QStringLiteral("type"), QStringLiteral("postgresql"));
    entry.insert(QStringLiteral("databaseName"), database);
    for (const auto &value : values) {
        if (!value.value.isEmpty())
            entry.insert(QLatin1String(value.key), value.value);
    }
    return readPassword(task, entry);
}
