#include "journal.h"

#include "database.h"
#include "jsonwriter.h"
#include "task.h"
#include "texts.h"
#include "writetransaction.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

namespace {

/** What the first line holds in place of the hash of the line before. */
const QString &noLine()
{
    static const QString zeros(64, QLatin1Char('0'));
    return zeros;
}

QString hashOf(const QByteArray &text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex());
}

struct Head {
    int lines = 0;           ///< the number of the last line
    QString hash = noLine(); ///< its
    int earlierLines = -1;   ///< of the line that was the last before an addition that broke off; -1: none did
    QString earlierHash;     ///< its, null for none
    int restartedAt = 0;     ///< the first line since the head was missing; 0: it never was
};

QByteArray format(const Head &head)
{
    QByteArray text;
    JsonWriter json(text);
    json.beginObject();
    json.member("lines", head.lines);
    json.member("sha256", head.hash);
    json.member("earlierLines", head.earlierLines);
    json.member("earlierSha256", head.earlierHash);
    json.member("restartedAt", head.restartedAt);
    json.endObject();
    return text;
}

bool parse(const QByteArray &text, Head &head)
{
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    head.lines = object.value(QLatin1String("lines")).toInt(-1);
    head.hash = object.value(QLatin1String("sha256")).toString();
    head.earlierLines = object.value(QLatin1String("earlierLines")).toInt(-1);
    head.earlierHash = object.value(QLatin1String("earlierSha256")).toString();
    head.restartedAt = object.value(QLatin1String("restartedAt")).toInt();
    return head.lines >= 0 && head.hash.size() == noLine().size();
}

/** The end that new lines are chained to. */
Head endOf(const QByteArray &storedHead, const QByteArray &last)
{
    Head head;
    const QString lastHash = last.isEmpty() ? noLine() : hashOf(last);
    if (parse(storedHead, head)) {
        // A break between head and lines: what was being added is not there, and was answered to nobody.
        if (head.earlierLines >= 0 && head.earlierHash == lastHash) {
            head.lines = head.earlierLines;
            head.hash = head.earlierHash;
        }
        head.earlierLines = -1;
        head.earlierHash.clear();
        return head; // where the lines tell otherwise, the gap shows what was taken away
    }
    head = Head();
    JournalRecord line;
    if (!last.isEmpty() && Journal::parse(last, line)) {
        head.lines = line.line;
        head.hash = lastHash;
    }
    if (!last.isEmpty())
        head.restartedAt = head.lines + 1;
    return head;
}

} // namespace

QByteArray Journal::text(const JournalRecord &line)
{
    QByteArray bytes;
    JsonWriter json(bytes);
    json.beginObject();
    json.member("line", line.line);
    json.member("time", line.time);
    json.member("invoice", line.invoiceNumber);
    json.member("id", line.invoiceId);
    json.member("kind", line.kind);
    json.member("format", line.format);
    json.member("file", line.file);
    json.member("sha256", line.sha256);
    json.member("record", line.record);
    json.member("previous", line.previous);
    json.endObject();
    return bytes;
}

bool Journal::fail(Task &task, const JournalStore &store)
{
    if (store.isInDatabase())
        return task.context().session.failDatabase(store.lastError());
    return task.fail(
        Problem::file,
        ::text(TEXT("lähetettyjen päiväkirjaa %1 ei voi käyttää: %2")).arg(store.place(), store.lastError()));
}

bool Journal::parse(const QByteArray &text, JournalRecord &line)
{
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    const auto word = [&object](const char *name) { return object.value(QLatin1String(name)).toString(); };
    line.line = object.value(QLatin1String("line")).toInt();
    line.time = word("time");
    line.invoiceNumber = object.value(QLatin1String("invoice")).toInt();
    line.invoiceId = object.value(QLatin1String("id")).toInt(-1);
    line.kind = word("kind");
    line.format = word("format");
    line.file = word("file");
    line.sha256 = word("sha256");
    line.record = word("record");
    line.previous = word("previous");
    line.hash = hashOf(text);
    return line.line > 0 && line.invoiceId >= 0 && line.previous.size() == noLine().size();
}

bool Journal::Filter::matches(const JournalRecord &line) const
{
    const auto isWithin = [&line](const InvoiceSelection::NumberRange &range) {
        return line.invoiceNumber >= range.from && (range.to < 0 || line.invoiceNumber <= range.to);
    };
    if (!(invoices.numbers.isEmpty() && invoices.ids.isEmpty()) && !invoices.ids.contains(line.invoiceId) &&
        !std::any_of(invoices.numbers.begin(), invoices.numbers.end(), isWithin))
        return false;
    if (!from.isValid() && !to.isValid())
        return true;
    const QDate day = QDateTime::fromString(line.time, Qt::ISODate).toLocalTime().date();
    return (!from.isValid() || day >= from) && (!to.isValid() || day <= to);
}

bool Journal::append(Task &task, const QVector<JournalRecord> &lines)
{
    DatabaseSession &session = task.context().session;
    const std::unique_ptr<JournalStore> store = session.database()->journal();
    std::optional<WriteTransaction> transaction;
    if (store->isInDatabase() && !transaction.emplace(session).hasBegun())
        return false;
    QByteArray storedHead, last;
    if (!store->lock(storedHead, last))
        return fail(task, *store);
    Head head = endOf(storedHead, last);
    const Head earlier = head;
    QVector<JournalStore::Line> added;
    for (JournalRecord line : lines) {
        line.line = ++head.lines;
        line.previous = head.hash;
        added.append({line.line, line.invoiceId, text(line)});
        head.hash = hashOf(added.last().text);
    }
    Head intent = head;
    intent.earlierLines = earlier.lines;
    intent.earlierHash = earlier.hash;
    if (!lines.isEmpty() && !store->write(format(intent), added, format(head)))
        return fail(task, *store);
    return !transaction || transaction->commit();
}

bool Journal::read(Task &task, const std::function<bool(const JournalRecord &, bool isLine)> &each, int invoiceId)
{
    const std::unique_ptr<JournalStore> store = task.context().session.database()->journal();
    QByteArray head;
    int place = 0;
    const QByteArray id = "\"id\":" + QByteArray::number(invoiceId) + ',';
    const auto take = [&](const QByteArray &text) {
        ++place;
        if (invoiceId >= 0 && !text.contains(id)) // long journals are looked through for every change
            return true;
        JournalRecord line;
        const bool isLine = parse(text, line);
        if (!isLine)
            line.line = place;
        return each(line, isLine);
    };
    return store->read(head, take, invoiceId) || fail(task, *store);
}

bool Journal::verify(Task &task, const std::function<void(const JournalRecord &)> &sent,
                     const std::function<void(const JournalFindingRecord &)> &found)
{
    const std::unique_ptr<JournalStore> store = task.context().session.database()->journal();
    const auto tell = [&found](int line, int invoice, const char *finding, const QString &message) {
        JournalFindingRecord record;
        record.line = line;
        record.invoiceNumber = invoice;
        record.finding = QLatin1String(finding);
        record.message = message;
        found(record);
    };
    QByteArray storedHead;
    JournalRecord last, highest;
    last.hash = noLine();
    int place = 0;
    const auto take = [&](const QByteArray &bytes) {
        JournalRecord line;
        ++place;
        if (!parse(bytes, line)) {
            tell(place, 0, "broken", ::text(TEXT("kohta %1 ei ole päiväkirjan rivi")).arg(place));
            return true;
        }
        if (line.line > last.line + 1)
            tell(line.line, line.invoiceNumber, "removed",
                 line.line == last.line + 2 ? ::text(TEXT("rivi %1 puuttuu")).arg(last.line + 1)
                                            : ::text(TEXT("rivit %1–%2 puuttuvat"))
                                                  .arg(QString::number(last.line + 1), QString::number(line.line - 1)));
        else if (line.line <= last.line)
            tell(line.line, line.invoiceNumber, "added",
                 ::text(TEXT("rivi %1 on rivin %2 jäljessä: lisätty tai siirretty"))
                     .arg(QString::number(line.line), QString::number(last.line)));
        else if (line.previous != last.hash && last.line > 0)
            tell(last.line, last.invoiceNumber, "changed", ::text(TEXT("riviä %1 on muutettu")).arg(last.line));
        else if (line.previous != last.hash)
            tell(line.line, line.invoiceNumber, "changed", ::text(TEXT("riviä %1 on muutettu")).arg(line.line));
        sent(line);
        last = line;
        if (line.line > highest.line)
            highest = line;
        return true;
    };
    if (!store->read(storedHead, take))
        return fail(task, *store);
    last = highest; // where the order was changed
    Head head;
    const bool hasHead = parse(storedHead, head);
    if (!hasHead) {
        if (place > 0)
            tell(last.line, 0, "head", ::text(TEXT("tieto viimeisestä rivistä puuttuu: lopusta voi puuttua rivejä")));
        return true;
    }
    if (head.restartedAt > 0)
        tell(head.restartedAt, 0, "head",
             ::text(TEXT("tieto viimeisestä rivistä puuttui ennen riviä %1: lopusta on voinut puuttua rivejä"))
                 .arg(head.restartedAt));
    if (head.earlierLines >= 0 && last.line == head.earlierLines && last.hash == head.earlierHash)
        return true; // the last addition broke off and was answered to nobody
    if (last.line < head.lines)
        tell(head.lines, 0, "removed",
             last.line + 1 == head.lines ? ::text(TEXT("viimeinen rivi %1 puuttuu")).arg(head.lines)
                                         : ::text(TEXT("viimeiset rivit %1–%2 puuttuvat"))
                                               .arg(QString::number(last.line + 1), QString::number(head.lines)));
    else if (last.line > head.lines)
        tell(last.line, last.invoiceNumber, "added",
             ::text(TEXT("rivi %1 on lisätty viimeisen rivin %2 jälkeen"))
                 .arg(QString::number(last.line), QString::number(head.lines)));
    else if (last.hash != head.hash)
        tell(last.line, last.invoiceNumber, "changed", ::text(TEXT("riviä %1 on muutettu")).arg(last.line));
    return true;
}
