#ifndef LISTDOCUMENT_H
#define LISTDOCUMENT_H

#include "exportlist.h"

/** Makes lists, see ExportList. */
namespace ListDocument {

/** As ExportList::run(). */
[[nodiscard]] bool make(UseCaseContext &context, ExportList::Kind kind, const ExportList::Request &request,
                        QString &fileName);

} // namespace ListDocument

#endif
