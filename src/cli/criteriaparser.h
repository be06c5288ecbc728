#ifndef CRITERIAPARSER_H
#define CRITERIAPARSER_H

#include <QString>

class InvoiceCriteria;
class PaymentCriteria;
class RecordFinder;
class ValueParser;

/** Turns search keys into criteria. */
class CriteriaParser {
public:
    /** Neither is owned; failures of both go to their status. */
    CriteriaParser(ValueParser &values, RecordFinder &finder) : m_values(values), m_finder(finder) {}

    // 1: applied; -1: the value failed (the status tells); 0: not a key of these criteria.
    /** A key that is given twice counts with its later value. */
    int parseInvoiceCriteriaParam(const QString &key, const QString &value, InvoiceCriteria *criteria);
    int parsePaymentCriteriaParam(const QString &key, const QString &value, PaymentCriteria *criteria);

    /** For the tables of keys. */
    ValueParser &values() { return m_values; }
    RecordFinder &finder() { return m_finder; }

private:
    ValueParser &m_values;  ///< not owned
    RecordFinder &m_finder; ///< not owned
};

#endif
