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
    CriteriaParser(ValueParser &values, RecordFinder &finder) : m_values(values), m_finder(finder) {}

    // 1: applied; -1: the value failed (the status tells); 0: not a key of these criteria.
    int parseInvoiceCriteriaParam(const QString &key, const QString &value, InvoiceCriteria *criteria);
    int parsePaymentCriteriaParam(const QString &key, const QString &value, PaymentCriteria *criteria);

    ValueParser &values() { return m_values; }
    RecordFinder &finder() { return m_finder; }

private:
    ValueParser &m_values;
    RecordFinder &m_finder;
};

#endif
