#ifndef SCHEMACOLUMNS_H
#define SCHEMACOLUMNS_H

/** The schema as it is agreed with the other programs that share the databases; each table but settings has an id. */
struct SchemaColumn {
    const char *table, *name;
    const char *sqlite;
    const char *postgresql;        ///< null: the same
    int since = 1;                 ///< the schema version that brought it
    const char *before9 = nullptr; ///< the type until version 9, which moved it from two decimals to four
};

constexpr const char *schemaTables[] = {"settings", "customer",     "product", "bank_account",
                                        "invoice",  "invoice_item", "payment", "print_script"};

#define VARCHAR(length) "varchar(" #length ") NOT NULL DEFAULT ''"
constexpr SchemaColumn schemaColumns[] = {
    {"settings", "version", "integer", nullptr},
    {"settings", "seller_name", "text", nullptr},
    {"settings", "seller_street_name", "text", nullptr},
    {"settings", "seller_post_code", "text", nullptr},
    {"settings", "seller_town_name", "text", nullptr},
    {"settings", "seller_country", "text", nullptr},
    {"settings", "seller_business_id", "text", nullptr},
    {"settings", "seller_logo", "blob", "bytea"},
    {"settings", "properties", "text", nullptr},
    {"customer", "number", "integer", nullptr},
    {"customer", "name", "text", nullptr},
    {"customer", "street_name", "text", nullptr},
    {"customer", "post_code", "text", nullptr},
    {"customer", "town_name", "text", nullptr},
    {"customer", "country", "text", nullptr},
    {"customer", "contact", VARCHAR(100), nullptr, 3},
    {"customer", "vat_number", VARCHAR(50), nullptr, 2},
    {"customer", "reference_number", VARCHAR(50), nullptr, 2},
    {"customer", "email_address", VARCHAR(100), nullptr, 2},
    {"customer", "phone_number", VARCHAR(100), nullptr, 3},
    {"customer", "payment_terms", VARCHAR(100), nullptr, 5},
    {"customer", "properties", "text NOT NULL DEFAULT ''", nullptr, 7},
    {"customer", "deleted", "boolean", nullptr},
    {"product", "number", "text", nullptr},
    {"product", "name", "text", nullptr},
    {"product", "unit_code", "text", nullptr},
    {"product", "amount", "bigint", nullptr, 1, "integer"},
    {"product", "vat_rate", "integer", nullptr},
    {"product", "vat_excluded", "integer NOT NULL DEFAULT 0", "boolean NOT NULL DEFAULT false", 4},
    {"product", "category", VARCHAR(100), nullptr, 6},
    {"bank_account", "name", "text", nullptr},
    {"bank_account", "short_name", "text", nullptr},
    {"bank_account", "iban", "text", nullptr},
    {"bank_account", "bic", "text", nullptr},
    {"bank_account", "row_number", "integer", nullptr},
    {"bank_account", "visible", "boolean NOT NULL DEFAULT 1", "boolean NOT NULL DEFAULT true", 10},
    {"bank_account", "deleted", "boolean", nullptr},
    {"invoice", "customer_id", "integer", nullptr},
    {"invoice", "type", "integer", nullptr},
    {"invoice", "number", "integer", nullptr},
    {"invoice", "date", "date", nullptr},
    {"invoice", "payment_terms", "text", nullptr},
    {"invoice", "delivery", "text", nullptr},
    {"invoice", "delivery_date", "date", nullptr, 8},
    {"invoice", "buyer_ref", "text", nullptr},
    {"invoice", "seller_ref", "text", nullptr},
    {"invoice", "interest_on_arrears", "integer", nullptr},
    {"invoice", "due_date", "date", nullptr},
    {"invoice", "reference_number", "text", nullptr},
    {"invoice", "total_amount", "integer", nullptr},
    {"invoice", "balance", "integer", nullptr},
    {"invoice", "properties", "text NOT NULL DEFAULT ''", nullptr, 7},
    {"invoice", "tags", "integer NOT NULL DEFAULT 0", nullptr, 9},
    {"invoice_item", "invoice_id", "integer", nullptr},
    {"invoice_item", "product_number", "text", nullptr},
    {"invoice_item", "product_name", "text", nullptr},
    {"invoice_item", "quantity", "bigint", nullptr, 1, "integer"},
    {"invoice_item", "unit_code", "text", nullptr},
    {"invoice_item", "amount", "bigint", nullptr, 1, "integer"},
    {"invoice_item", "vat_rate", "integer", nullptr},
    {"invoice_item", "vat_excluded", "integer NOT NULL DEFAULT 0", "boolean NOT NULL DEFAULT false", 4},
    {"invoice_item", "discount", "integer NOT NULL DEFAULT 0", nullptr, 6},
    {"invoice_item", "text", "text", nullptr},
    {"invoice_item", "row_number", "integer", nullptr},
    {"payment", "invoice_id", "integer", nullptr},
    {"payment", "date", "date", nullptr},
    {"payment", "bank_account_id", "integer", nullptr},
    {"payment", "amount", "integer", nullptr},
    {"print_script", "type", "text", nullptr},
    {"print_script", "name", "text", nullptr},
    {"print_script", "source_code", "text", nullptr},
};
#undef VARCHAR

#endif
