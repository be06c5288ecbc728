#ifndef CHILDPROCESS_H
#define CHILDPROCESS_H

#include <QByteArray>

#include <functional>

/**
 * Work that may take its process down (by memory without end, by too deep a stack, by what never returns) is done in a
 * copy of this process, which sends its results as messages. The copy has all data; what it changes stays its own. It
 * must leave the database alone, whose connection it shares.
 */
namespace ChildProcess {

using Send = std::function<void(const QByteArray &message)>;

/**
 * Runs the work in a copy until it is done or dead.
 * @param work     runs in the copy
 * @param receive  runs in this process, once for each whole message and in their order
 * @return whether the work came to its end; where no process can be made it is done in this one
 */
[[nodiscard]] bool run(const std::function<void(const Send &)> &work,
                       const std::function<void(const QByteArray &)> &receive);

/**
 * Bounds what the copy, when called in it, may take beyond the address space that it has now: what asks for more gets
 * none, and mostly dies of it. Not with the address sanitizer, which takes terabytes.
 */
void limitMemory(qint64 bytes);
/** Ends the copy, when called in it, after so many seconds of processor time from now. Waiting costs none. */
void limitTime(int seconds);

} // namespace ChildProcess

#endif
