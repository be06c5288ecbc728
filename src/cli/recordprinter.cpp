#include "recordprinter.h"

#include "bankaccount.h"
#include "customer.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "product.h"
#include "responsewriter.h"

#include <functional>

namespace {

template <class Record> struct Property {
    const char *name;
    void (*print)(ResponseWriter &, const char *name, const Record &);
};

// What a row of the tables below can be: the member's own type, or a number of one of the four scales.
template <auto member, class Record> void plain(ResponseWriter &response, const char *name, const Record &record)
{
    response.printProperty(name, std::invoke(member, record));
}

template <auto member, class Record> void amount(ResponseWriter &response, const char *name, const Record &record)
{
    response.printAmount(name, std::invoke(member, record));
}

template <auto member, class Record> void total(ResponseWriter &response, const char *name, const Record &record)
{
    response.printTotal(name, std::invoke(member, record));
}

template <auto member, class Record> void quantity(ResponseWriter &response, const char *name, const Record &record)
{
    response.printQuantity(name, std::invoke(member, record));
}

template <auto member, class Record> void percent(ResponseWriter &response, const char *name, const Record &record)
{
    response.printPercentage(name, std::invoke(member, record));
}

template <char digit> void custom(ResponseWriter &response, const char *name, const Customer &customer)
{
    response.printProperty(name, customer.property(QLatin1Char('c') + QString(QLatin1Char(digit))).toString());
}

constexpr Property<BankAccount> bankAccountProperties[] = {
    {"id", plain<&BankAccount::id>},
    {"name", plain<&BankAccount::name>},
    {"shortName", plain<&BankAccount::shortName>},
    {"iban", plain<&BankAccount::iban>},
    {"bic", plain<&BankAccount::bic>},
    {"rowNumber", plain<&BankAccount::rowNumber>},
};

constexpr Property<Customer> customerProperties[] = {
    {"id", plain<&Customer::id>},
    {"number", plain<&Customer::number>},
    {"name", plain<&Customer::name>},
    {"streetName", plain<&Customer::streetName>},
    {"postCode", plain<&Customer::postCode>},
    {"townName", plain<&Customer::townName>},
    {"country", plain<&Customer::country>},
    {"contact", plain<&Customer::contact>},
    {"vatNumber", plain<&Customer::vatNumber>},
    {"referenceNumber", plain<&Customer::referenceNumber>},
    {"emailAddress", plain<&Customer::emailAddress>},
    {"phoneNumber", plain<&Customer::phoneNumber>},
    {"paymentTerms", plain<&Customer::paymentTerms>},
    {"custom1", custom<'1'>},
    {"custom2", custom<'2'>},
};

constexpr Property<Product> productProperties[] = {
    {"id", plain<&Product::id>},
    {"number", plain<&Product::number>},
    {"name", plain<&Product::name>},
    {"unitCode", plain<&Product::unitCode>},
    {"amountVatIncluded", amount<&Product::amountVatIncluded>},
    {"amountVatExcluded", amount<&Product::amountVatExcluded>},
    {"vatRate", percent<&Product::vatRate>},
    {"vatExcluded", plain<&Product::vatExcluded>},
    {"category", plain<&Product::category>},
};

constexpr Property<Invoice> invoiceProperties[] = {
    {"id", plain<&Invoice::id>},
    {"customerId", plain<&Invoice::customerId>},
    {"type", plain<&Invoice::type>},
    {"number", plain<&Invoice::number>},
    {"date", plain<&Invoice::date>},
    {"paymentTerms", plain<&Invoice::paymentTerms>},
    {"delivery", plain<&Invoice::delivery>},
    {"deliveryDate", plain<&Invoice::deliveryDate>},
    {"buyerRef", plain<&Invoice::buyerRef>},
    {"sellerRef", plain<&Invoice::sellerRef>},
    {"interestOnArrears", percent<&Invoice::interestOnArrears>},
    {"dueDate", plain<&Invoice::dueDate>},
    {"referenceNumber", plain<&Invoice::referenceNumber>},
    {"amount", total<&Invoice::totalAmount>},
    {"balance", total<&Invoice::balance>},
};

constexpr Property<InvoiceItem> invoiceItemProperties[] = {
    {"id", plain<&InvoiceItem::id>},
    {"invoiceId", plain<&InvoiceItem::invoiceId>},
    {"productNumber", plain<&InvoiceItem::productNumber>},
    {"productName", plain<&InvoiceItem::productName>},
    {"quantity", quantity<&InvoiceItem::quantity>},
    {"unitCode", plain<&InvoiceItem::unitCode>},
    {"amountVatIncluded", amount<&InvoiceItem::amountVatIncluded>},
    {"amountVatExcluded", amount<&InvoiceItem::amountVatExcluded>},
    {"vatRate", percent<&InvoiceItem::vatRate>},
    {"vatExcluded", plain<&InvoiceItem::vatExcluded>},
    {"discount", percent<&InvoiceItem::discount>},
    {"text", plain<&InvoiceItem::text>},
};

constexpr Property<Payment> paymentProperties[] = {
    {"id", plain<&Payment::id>},         {"invoiceId", plain<&Payment::invoiceId>},
    {"date", plain<&Payment::date>},     {"bankAccountId", plain<&Payment::bankAccountId>},
    {"amount", total<&Payment::amount>},
};

template <class Record, std::size_t n>
void printRecord(ResponseWriter &response, const QString &type, const Property<Record> (&properties)[n],
                 const Record &record)
{
    response.startRecord(type);
    for (const Property<Record> &property : properties)
        property.print(response, property.name, record);
    response.endRecord();
}

} // namespace

void RecordPrinter::printBankAccount(ResponseWriter &response, const BankAccount &account)
{
    printRecord(response, QStringLiteral("bankAccount"), bankAccountProperties, account);
}

void RecordPrinter::printCustomer(ResponseWriter &response, const Customer &customer)
{
    printRecord(response, QStringLiteral("customer"), customerProperties, customer);
}

void RecordPrinter::printProduct(ResponseWriter &response, const Product &product)
{
    printRecord(response, QStringLiteral("product"), productProperties, product);
}

void RecordPrinter::printInvoice(ResponseWriter &response, const Invoice &invoice)
{
    printRecord(response, QStringLiteral("invoice"), invoiceProperties, invoice);
}

void RecordPrinter::printInvoiceItem(ResponseWriter &response, const InvoiceItem &item)
{
    printRecord(response, QStringLiteral("invoiceItem"), invoiceItemProperties, item);
}

void RecordPrinter::printPayment(ResponseWriter &response, const Payment &payment)
{
    printRecord(response, QStringLiteral("payment"), paymentProperties, payment);
}
