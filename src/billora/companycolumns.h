#ifndef COMPANYCOLUMNS_H
#define COMPANYCOLUMNS_H

#include "field.h"

#include <QString>

/**
 * The fields `company.number` and `company.name` in front of those of a record, where a list goes through several
 * companies. They are the same for all records between two calls of set().
 */
namespace CompanyColumns {

/** The company whose records follow. */
void set(int number, const QString &name);
int number(); ///< as set
/** Both fields; their getters look at no record. */
extern const RecordTable table;

} // namespace CompanyColumns

#endif
