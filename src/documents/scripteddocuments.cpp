#include "scripteddocuments.h"

#include "childprocess.h"
#include "exporttools.h"
#include "replacedfile.h"

#include <QDataStream>
#include <QFile>

namespace {

/** What the worker tells, each with texts of its own. */
enum Message {
    notLoaded,  ///< Failure::Code, its arguments
    begun,      ///< the file's name, and it once more when it was made empty to reserve the name
    unwritable, ///< the reason
    done,       ///< the exception
};

QByteArray encode(Message message, const QStringList &texts)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << qint32(message) << texts;
    return bytes;
}

/** What a script may take; a page takes some megabytes. */
constexpr qint64 memoryLimit = 512LL << 20; // bytes
/** A little more than it may take by its own clock, which does not see what runs without a loop. */
constexpr int processorSeconds = ScriptRunner::timeLimitMs / 1000 + 2;

} // namespace

ScriptedDocuments::ScriptedDocuments(UseCaseContext &context, ScriptSource source, Work work)
    : m_context(context), m_source(std::move(source)), m_work(std::move(work))
{
}

void ScriptedDocuments::work(int from, int to, const Send &send)
{
    if (!m_host) {
        std::unique_ptr<ScriptHost> host = m_work.makeHost();
        if (m_source.isStored()) { // the first engine of a process reserves two gigabytes of addresses
            const QScriptEngine engine;
            ChildProcess::limitMemory(memoryLimit);
        }
        ChildProcess::limitTime(processorSeconds);
        const bool isLoaded = m_source.load(*host);
        if (const auto failure = ExportTools::loadFailure(*host, isLoaded)) {
            send(encode(notLoaded, QStringList(QString::number(failure->code)) + failure->arguments));
            return;
        }
        m_host = std::move(host);
    }
    for (int i = from; i < to; ++i) {
        const ReservedName reserved = m_work.reserve(i);
        const QString &name = reserved.name();
        send(encode(begun, reserved.isMade() ? QStringList{name, name} : QStringList{name}));
        ChildProcess::limitTime(processorSeconds);
        m_work.write(*m_host, name, i);
        if (!m_host->lastError().isEmpty()) {
            send(encode(unwritable, {m_host->lastError()}));
            return;
        }
        send(encode(done, m_host->hasException() ? ExportTools::exception(*m_host) : QStringList()));
    }
}

bool ScriptedDocuments::make(int from, int to, const Done &tell)
{
    const QStringList died = {tr("Tulostuspohja vaati liikaa muistia, aikaa tai sisäkkäisiä kutsuja"),
                              QString::number(0)};
    ReplacedFile::prepareFork();
    int next = from;
    while (next < to) {
        const int first = next;
        bool isFailed = false;
        QStringList file; // as of `begun`
        const auto receive = [&](const QByteArray &bytes) {
            qint32 message = 0;
            QStringList texts;
            QDataStream(bytes) >> message >> texts;
            switch (message) {
            case notLoaded:
                isFailed = true;
                m_context.listener.fail(static_cast<Failure::Code>(texts.first().toInt()), texts.mid(1));
                break;
            case begun:
                file = texts;
                break;
            case unwritable:
                isFailed = true;
                ExportTools::failWriting(m_context, file.first(), texts.first());
                break;
            default:
                tell(next++, file.first(), texts);
                file.clear();
            }
        };
        bool isWhole = true;
        if (m_source.isStored())
            isWhole = ChildProcess::run([&](const Send &send) { work(first, to, send); }, receive);
        else
            work(first, to, receive);
        if (isFailed)
            return false;
        if (isWhole)
            return true;
        if (!file.isEmpty()) {
            ReplacedFile::removeLeftOvers(file.first());
            if (file.size() > 1)
                ReservedName::release(file.first());
            tell(next++, file.first(), died);
        } else if (next == first) {
            return m_context.listener.fail(Failure::scriptException, died); // while it was loaded
        }
    }
    return true;
}
