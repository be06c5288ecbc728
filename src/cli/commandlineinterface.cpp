#include "commandlineinterface.h"

#include "bankaccountcommands.h"
#include "customercommands.h"
#include "exportcommands.h"
#include "invoicecommands.h"
#include "invoiceitemcommands.h"
#include "paymentcommands.h"
#include "productcommands.h"

namespace {

constexpr SaveCommandMode adding = SaveCommandMode::add;
constexpr SaveCommandMode editing = SaveCommandMode::edit;
constexpr FindCommandMode finding = FindCommandMode::find;
constexpr FindCommandMode removing = FindCommandMode::remove;

constexpr Command commands[] = {
    {"--add-bank-account", "add-bank-account", call<parseSaveBankAccountCommand, adding>},
    {"--edit-bank-account", "edit-bank-account", call<parseSaveBankAccountCommand, editing>},
    {"--find-bank-accounts", "find-bank-accounts", call<parseFindBankAccountsCommand, finding>},
    {"--remove-bank-accounts", "remove-bank-accounts", call<parseFindBankAccountsCommand, removing>},
    {"--add-customer", "add-customer", call<parseSaveCustomerCommand, adding>},
    {"--edit-customer", "edit-customer", call<parseSaveCustomerCommand, editing>},
    {"--find-customers", "find-customers", call<parseFindCustomersCommand, finding>},
    {"--remove-customers", "remove-customers", call<parseFindCustomersCommand, removing>},
    {"--add-invoice", "add-invoice", call<parseSaveInvoiceCommand, adding>},
    {"--edit-invoice", "edit-invoice", call<parseSaveInvoiceCommand, editing>}, // the usage text has a plural
    {"--find-invoices", "find-invoices", call<parseFindInvoicesCommand, finding>},
    {"--remove-invoices", "remove-invoices", call<parseFindInvoicesCommand, removing>},
    {"--add-invoice-item", "add-invoice-item", call<parseSaveInvoiceItemCommand, adding>},
    {"--edit-invoice-item", "edit-invoice-item", call<parseSaveInvoiceItemCommand, editing>},
    {"--remove-invoice-items", "remove-invoice-items", call<parseRemoveInvoiceItemCommand>},
    {"--add-product", "add-product", call<parseSaveProductCommand, adding>},
    {"--edit-product", "edit-product", call<parseSaveProductCommand, editing>},
    {"--find-products", "find-products", call<parseFindProductsCommand, finding>},
    {"--remove-products", "find-products", call<parseFindProductsCommand, removing>}, // the name is relied on
    {"--find-payments", "find-payments", call<parseFindPaymentsCommand, finding>},
    {"--add-payment", "add-payment", call<parseSavePaymentCommand, adding>},
    {"--edit-payment", "edit-payment", call<parseSavePaymentCommand, editing>},
    {"--remove-payments", "remove-payments", call<parseFindPaymentsCommand, removing>},
    {"--export-invoices", "export-invoices", call<parseExportInvoicesCommand>},
    {"--export-invoice-list", "export-invoice-list", call<parseExportPrintCommand, ExportList::invoices>},
    {"--export-customer-list", "export-customer-list", call<parseExportPrintCommand, ExportList::customers>},
    {"--export-product-list", "export-product-list", call<parseExportPrintCommand, ExportList::products>},
    {"--export-payment-list", "export-payment-list", call<parseExportPrintCommand, ExportList::payments>},
};

} // namespace

CommandLineInterface::CommandLineInterface(QObject *parent)
    : CommandInterface(QStringLiteral("Billora CLI"), QStringLiteral(":/help.txt"), parent)
{
}

const Command *CommandLineInterface::findCommand(const QString &word) const { return findIn(commands, word); }
