#include "schemaupgrade.h"

namespace {

enum Backend { both, sqliteOnly, postgresqlOnly };

struct Statement {
    int fromVersion;
    Backend backend;
    const char *sql;
};

// SQLite knows neither boolean literals in old versions nor ALTER COLUMN, and takes 64-bit values as its columns are.
constexpr Statement allStatements[] = {
    {1, both, "ALTER TABLE customer ADD vat_number varchar(50) NOT NULL DEFAULT ''"},
    {1, both, "ALTER TABLE customer ADD reference_number varchar(50) NOT NULL DEFAULT ''"},
    {1, both, "ALTER TABLE customer ADD email_address varchar(100) NOT NULL DEFAULT ''"},
    {1, both, "UPDATE settings SET version=2"},

    {2, both, "ALTER TABLE customer ADD contact varchar(100) NOT NULL DEFAULT ''"},
    {2, both, "ALTER TABLE customer ADD phone_number varchar(100) NOT NULL DEFAULT ''"},
    {2, both, "UPDATE settings SET version=3"},

    {3, postgresqlOnly, "ALTER TABLE invoice_item ADD vat_excluded boolean NOT NULL DEFAULT FALSE"},
    {3, postgresqlOnly, "ALTER TABLE product ADD vat_excluded boolean NOT NULL DEFAULT FALSE"},
    {3, sqliteOnly, "ALTER TABLE invoice_item ADD vat_excluded integer NOT NULL DEFAULT 0"},
    {3, sqliteOnly, "ALTER TABLE product ADD vat_excluded integer NOT NULL DEFAULT 0"},
    {3, both, "UPDATE settings SET version=4"},

    {4, both, "ALTER TABLE customer ADD payment_terms varchar(100) NOT NULL DEFAULT ''"},
    {4, both, "UPDATE settings SET version=5"},

    {5, both, "ALTER TABLE product ADD category varchar(100) NOT NULL DEFAULT ''"},
    {5, both, "ALTER TABLE invoice_item ADD discount integer NOT NULL DEFAULT 0"},
    {5, both, "UPDATE settings SET version=6"},

    {6, both, "ALTER TABLE customer ADD properties text NOT NULL DEFAULT ''"},
    {6, both, "ALTER TABLE invoice ADD properties text NOT NULL DEFAULT ''"},
    {6, both, "UPDATE settings SET version=7"},

    {7, both, "ALTER TABLE invoice ADD delivery_date date"},
    {7, both, "UPDATE settings SET version=8"},

    {8, postgresqlOnly, "ALTER TABLE invoice_item ALTER quantity TYPE bigint, ALTER amount TYPE bigint"},
    {8, postgresqlOnly, "ALTER TABLE product ALTER amount TYPE bigint"},
    {8, both, "ALTER TABLE invoice ADD tags integer NOT NULL DEFAULT 0"},
    {8, both, "UPDATE invoice_item SET quantity = 100 * quantity, amount = 100 * amount"},
    {8, both, "UPDATE product SET amount = 100 * amount"},
    {8, both, "UPDATE settings SET version=9"},

    {9, postgresqlOnly, "ALTER TABLE bank_account ADD visible boolean NOT NULL DEFAULT true"},
    {9, sqliteOnly, "ALTER TABLE bank_account ADD visible boolean NOT NULL DEFAULT 1"},
    {9, both, "UPDATE settings SET version=10"},
};

} // namespace

QStringList SchemaUpgrade::statements(int fromVersion, bool sqlite)
{
    QStringList list;
    for (const Statement &statement : allStatements) {
        const bool wanted = statement.backend == both || (statement.backend == sqliteOnly) == sqlite;
        if (statement.fromVersion == fromVersion && wanted)
            list.append(QLatin1String(statement.sql));
    }
    return list;
}
