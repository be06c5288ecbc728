#include "serveraddress.h"

#include "prompt.h"
#include "task.h"
#include "texts.h"

#include <QDir>
#include <QFile>
#include <QUrl>

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
    const bool isRight = url.isValid() &&
                         (url.scheme() == QLatin1String("postgresql") || url.scheme() == QLatin1String("postgres")) &&
                         !url.host().isEmpty() && !database.isEmpty() && !database.contains(QLatin1Char('/'));
    if (!isRight)
        return task.reader.failValue(option, typed, text(TEXT("osoite on postgresql://KÄYTTÄJÄ@PALVELIN/TIETOKANTA")));
    if (!url.password().isEmpty())
        return task.reader.failValue(option, QStringLiteral("postgresql://…"),
                                     text(TEXT("salasana näkyisi kaikille; anna se tiedostossa: --password-file")));
    entry.insert(QStringLiteral("type"), QStringLiteral("postgresql"));
    entry.insert(QStringLiteral("host"), url.host());
    entry.insert(QStringLiteral("databaseName"), database);
    if (url.port() > 0)
        entry.insert(QStringLiteral("port"), url.port());
    if (!url.userName().isEmpty())
        entry.insert(QStringLiteral("username"), url.userName());
    return readPassword(task, entry);
}
