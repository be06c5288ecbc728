#ifndef CSVIMPORT_H
#define CSVIMPORT_H

#include "arguments.h"
#include "field.h"

#include <QString>
#include <QVector>

class Task;

/** Reads records from a CSV file with a title line. */
namespace CsvImport {

/** A line of the file as what a command is given. */
struct Line {
    int number = 0;   ///< in the file, from 1
    Arguments fields; ///< only the columns that the title line names
};

/**
 * The delimiter (comma, semicolon or tab) and the encoding (UTF-8, else ISO 8859-15) are found out. Titles are names of
 * fields, their headings in Finnish or English, or what `map` says: `Y-tunnus=vatNumber`. A title that nobody knows is
 * a problem unless `ignoreUnknown` is given.
 * @param fileName  `-` is standard input
 * @return false with the problem told
 */
[[nodiscard]] bool read(Task &task, const RecordTable &table, const QString &fileName, QVector<Line> &lines);

} // namespace CsvImport

#endif
