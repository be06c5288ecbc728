CREATE TABLE settings (version integer, seller_name text, seller_street_name text, seller_post_code text, seller_town_name text, seller_country text, seller_business_id text, seller_logo bytea, properties text)
CREATE SEQUENCE customer_id_seq
CREATE TABLE customer (id integer PRIMARY KEY DEFAULT nextval('customer_id_seq'), number integer, name text, street_name text, post_code text, town_name text, country text, contact varchar(100) NOT NULL DEFAULT '', vat_number varchar(50) NOT NULL DEFAULT '', reference_number varchar(50) NOT NULL DEFAULT '', email_address varchar(100) NOT NULL DEFAULT '', phone_number varchar(100) NOT NULL DEFAULT '', payment_terms varchar(100) NOT NULL DEFAULT '', properties text NOT NULL DEFAULT '', deleted boolean)
ALTER SEQUENCE customer_id_seq OWNED BY customer.id
CREATE SEQUENCE product_id_seq
CREATE TABLE product (id integer PRIMARY KEY DEFAULT nextval('product_id_seq'), number text, name text, unit_code text, amount bigint, vat_rate integer, vat_excluded boolean NOT NULL DEFAULT false, category varchar(100) NOT NULL DEFAULT '')
ALTER SEQUENCE product_id_seq OWNED BY product.id
CREATE SEQUENCE bank_account_id_seq
CREATE TABLE bank_account (id integer PRIMARY KEY DEFAULT nextval('bank_account_id_seq'), name text, short_name text, iban text, bic text, row_number integer, visible boolean NOT NULL DEFAULT true, deleted boolean)
ALTER SEQUENCE bank_account_id_seq OWNED BY bank_account.id
CREATE SEQUENCE invoice_id_seq
CREATE TABLE invoice (id integer PRIMARY KEY DEFAULT nextval('invoice_id_seq'), customer_id integer, type integer, number integer, date date, payment_terms text, delivery text, delivery_date date, buyer_ref text, seller_ref text, interest_on_arrears integer, due_date date, reference_number text, total_amount integer, balance integer, properties text NOT NULL DEFAULT '', tags integer NOT NULL DEFAULT 0)
ALTER SEQUENCE invoice_id_seq OWNED BY invoice.id
CREATE SEQUENCE invoice_item_id_seq
CREATE TABLE invoice_item (id integer PRIMARY KEY DEFAULT nextval('invoice_item_id_seq'), invoice_id integer, product_number text, product_name text, quantity bigint, unit_code text, amount bigint, vat_rate integer, vat_excluded boolean NOT NULL DEFAULT false, discount integer NOT NULL DEFAULT 0, text text, row_number integer)
ALTER SEQUENCE invoice_item_id_seq OWNED BY invoice_item.id
CREATE SEQUENCE payment_id_seq
CREATE TABLE payment (id integer PRIMARY KEY DEFAULT nextval('payment_id_seq'), invoice_id integer, date date, bank_account_id integer, amount integer)
ALTER SEQUENCE payment_id_seq OWNED BY payment.id
CREATE SEQUENCE print_script_id_seq
CREATE TABLE print_script (id integer PRIMARY KEY DEFAULT nextval('print_script_id_seq'), type text, name text, source_code text)
ALTER SEQUENCE print_script_id_seq OWNED BY print_script.id
CREATE INDEX customer_number_idx ON customer (number)
CREATE INDEX invoice_number_idx ON invoice (number)
CREATE INDEX invoice_customer_idx ON invoice (customer_id)
CREATE INDEX invoice_reference_idx ON invoice (reference_number)
CREATE INDEX invoice_item_invoice_idx ON invoice_item (invoice_id, row_number)
CREATE INDEX payment_invoice_idx ON payment (invoice_id)
