#include "task.h"

#include "prompt.h"
#include "texts.h"

#include <QFile>

namespace {

constexpr int manyRecords = 10;

} // namespace

bool Task::fail(Problem::Code code, const QString &message, const QString &option, const QString &value)
{
    Problem problem;
    problem.code = code;
    problem.message = message;
    problem.option = option;
    problem.value = value;
    return session.fail(problem);
}

bool Task::failSeveralCompanies()
{
    return fail(Problem::conflict, text(TEXT("komento koskee yhtä yritystä kerrallaan")), QStringLiteral("db"),
                session.chosenDatabase());
}

bool Task::answerWithFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return fail(Problem::file, file.errorString());
    answer.bytes(file.readAll());
    return true;
}

bool Task::confirm(const QString &question, int count, bool all)
{
    if (manners.agreesToAll || manners.isDryRun)
        return true;
    if (!manners.isInteractive)
        return fail(Problem::needsConfirmation, text(TEXT("vahvistus puuttuu: anna valinta --yes")));
    const bool agreed = all || count > manyRecords ? Prompt::agreesByNumber(question, count) : Prompt::agrees(question);
    return agreed || fail(Problem::declined, text(TEXT("mitään ei tehty")));
}
