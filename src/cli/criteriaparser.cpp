#include "criteriaparser.h"

#include "bankaccount.h"
#include "customer.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "paymentcriteria.h"
#include "recordfinder.h"
#include "valueparser.h"

namespace {

template <class Criteria> struct Key {
    const char *key;
    bool (*apply)(CriteriaParser &, const QString &key, const QString &value, Criteria &);
};

template <auto member, class Criteria>
bool number(CriteriaParser &parser, const QString &key, const QString &value, Criteria &criteria)
{
    return parser.values().parseIntValue(key, value, criteria.*member);
}

template <auto from, auto to, class Criteria>
bool numberRange(CriteriaParser &parser, const QString &key, const QString &value, Criteria &criteria)
{
    return parser.values().parseIntRangeValue(key, value, criteria.*from, criteria.*to);
}

template <auto member, class Criteria>
bool date(CriteriaParser &parser, const QString &key, const QString &value, Criteria &criteria)
{
    return parser.values().parseDateValue(key, value, criteria.*member);
}

template <auto from, auto to, class Criteria>
bool sameDay(CriteriaParser &parser, const QString &key, const QString &value, Criteria &criteria)
{
    if (!parser.values().parseDateValue(key, value, criteria.*from))
        return false;
    criteria.*to = criteria.*from;
    return true;
}

template <auto from, auto to, class Criteria>
bool dateRange(CriteriaParser &parser, const QString &key, const QString &value, Criteria &criteria)
{
    return parser.values().parseDateRangeValue(key, value, criteria.*from, criteria.*to);
}

bool customerByNumber(CriteriaParser &parser, const QString &key, const QString &value, InvoiceCriteria &criteria)
{
    int number = 0;
    Customer customer;
    if (!parser.values().parseIntValue(key, value, number) || !parser.finder().findCustomerByNumber(number, &customer))
        return false;
    criteria.customerId = customer.id;
    return true;
}

bool customerByName(CriteriaParser &parser, const QString &, const QString &value, InvoiceCriteria &criteria)
{
    Customer customer;
    if (!parser.finder().findCustomerByName(value, &customer))
        return false;
    criteria.customerId = customer.id;
    return true;
}

bool invoiceType(CriteriaParser &parser, const QString &key, const QString &value, InvoiceCriteria &criteria)
{
    int type = 0;
    if (!parser.values().parseIntValue(key, value, type))
        return false;
    if (type < 0 || type >= Invoice::typeCount) // would set no condition and find everything
        return parser.values().failNumber(key, value);
    criteria.types = 1 << type;
    return true;
}

bool bankAccountByName(CriteriaParser &parser, const QString &, const QString &value, PaymentCriteria &criteria)
{
    BankAccount account;
    if (!parser.finder().findBankAccountByName(value, &account))
        return false;
    criteria.bankAccountId = account.id;
    return true;
}

using IC = InvoiceCriteria;

constexpr Key<InvoiceCriteria> invoiceKeys[] = {
    {"findByInvoiceId", number<&IC::id>},
    {"findByNumber", number<&IC::number>},
    {"findByNumberRange", numberRange<&IC::numberFrom, &IC::numberTo>},
    {"findByDate", date<&IC::date>},
    {"findByDateRange", dateRange<&IC::dateFrom, &IC::dateTo>},
    {"findByDueDate", sameDay<&IC::dueDateFrom, &IC::dueDateTo>},
    {"findByDueDateRange", dateRange<&IC::dueDateFrom, &IC::dueDateTo>},
    {"findByDeliveryDate", sameDay<&IC::deliveryDateFrom, &IC::deliveryDateTo>},
    {"findByDeliveryDateRange", dateRange<&IC::deliveryDateFrom, &IC::deliveryDateTo>},
    {"findByCustomerId", number<&IC::customerId>},
    {"findByCustomerNumber", customerByNumber},
    {"findByCustomerName", customerByName},
    {"findByType", invoiceType},
};

constexpr Key<PaymentCriteria> paymentKeys[] = {
    {"findByPaymentDateRange", dateRange<&PaymentCriteria::dateFrom, &PaymentCriteria::dateTo>},
    {"findByBankAccountId", number<&PaymentCriteria::bankAccountId>},
    {"findByBankAccountName", bankAccountByName},
};

template <class Criteria, std::size_t n>
int applyKey(const Key<Criteria> (&keys)[n], CriteriaParser &parser, const QString &key, const QString &value,
             Criteria *criteria)
{
    for (const Key<Criteria> &known : keys) {
        if (key == QLatin1String(known.key))
            return known.apply(parser, key, value, *criteria) ? 1 : -1;
    }
    return 0;
}

} // namespace

int CriteriaParser::parseInvoiceCriteriaParam(const QString &key, const QString &value, InvoiceCriteria *criteria)
{
    return applyKey(invoiceKeys, *this, key, value, criteria);
}

int CriteriaParser::parsePaymentCriteriaParam(const QString &key, const QString &value, PaymentCriteria *criteria)
{
    return applyKey(paymentKeys, *this, key, value, criteria);
}
