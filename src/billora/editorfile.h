#ifndef EDITORFILE_H
#define EDITORFILE_H

#include "arguments.h"
#include "field.h"

#include <QStringList>

#include <functional>

class Task;

/**
 * A record as a text in the person's own editor ($VISUAL, $EDITOR): `field: value` lines, `row:` lines in the grammar
 * of RowWords, `#` remarks. LF within a value is written as \n.
 */
namespace EditorFile {

/** Saves what was changed. @return false with the problem told */
using Save = std::function<bool(const Arguments &changed)>;

/**
 * Opens the editor until the text is accepted, is empty or is left unchanged. A problem of the values opens it again
 * with the reason on top.
 * @param rows  the lines of the rows, null for a record without rows; changed rows are all in Arguments::rows
 * @param isUnchanged  set when there was nothing to save
 */
[[nodiscard]] bool edit(Task &task, const RecordTable &table, const void *record, const QStringList *rows,
                        const Save &save, bool &isUnchanged);

/** Opens a file in the editor and waits for its end. @return false with the problem told */
[[nodiscard]] bool open(Task &task, const QString &fileName);

} // namespace EditorFile

#endif
