#ifndef EXPORTTOOLS_H
#define EXPORTTOOLS_H

#include "printformat.h"
#include "usecasecontext.h"

#include <optional>

class PrintModel;
class ScriptHost;

/** What the exports of invoices and of lists share. */
namespace ExportTools {

/** The arguments of Failure::scriptException. */
QStringList exception(const ScriptHost &host);

/** Why no document can be made. */
struct LoadFailure {
    Failure::Code code;
    QStringList arguments;
};

/** Looks at what a load left in the host. @param isLoaded  whether the script could be read */
std::optional<LoadFailure> loadFailure(const ScriptHost &host, bool isLoaded);
/** The same, told. @return whether documents can be made */
bool checkLoaded(UseCaseContext &context, const ScriptHost &host, bool isLoaded);

/** Gathers the model's data, all of one moment. */
[[nodiscard]] bool runModel(UseCaseContext &context, PrintModel &model);

/** Tells that a file cannot be written. @return false */
bool failWriting(UseCaseContext &context, const QString &fileName, const QString &reason);

/** By the name's suffix; PDF for any other. */
PrintFormat guessFormat(const QString &fileName, bool allowFinvoice);

} // namespace ExportTools

#endif
