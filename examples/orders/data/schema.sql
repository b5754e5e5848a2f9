-- SPDX-FileCopyrightText: 2026 The KorDaoUC authors
-- SPDX-License-Identifier: MIT

-- The order desk's database (SQLite 3.37 or newer).
--
-- Every table gives its key first and its shown name second, so that a list can be filled with two columns. Amounts of
-- money are whole grosze. Dates are ISO texts. Every statement ends with a semicolon at the end of a line, and no other
-- line ends with one. To be run in one transaction; foreign keys are switched on by the program for each connection.

-- "Ordr", by which the program knows its own files.
PRAGMA application_id = 1332896882;
PRAGMA user_version = 3;

CREATE TABLE customer_groups (
    id   INTEGER PRIMARY KEY,
    name TEXT NOT NULL UNIQUE CHECK (name <> '')
) STRICT;

-- sort_name puts the Polish letters behind their Latin ones ("ł" behind all of "l"), which no collation of SQLite does.
CREATE TABLE customers (
    id          INTEGER PRIMARY KEY,
    name        TEXT NOT NULL CHECK (name <> ''),
    group_id    INTEGER NOT NULL REFERENCES customer_groups (id),
    nip         TEXT UNIQUE CHECK (length(nip) = 10 AND nip NOT GLOB '*[^0-9]*'),
    street      TEXT NOT NULL,
    postal_code TEXT NOT NULL CHECK (postal_code GLOB '[0-9][0-9]-[0-9][0-9][0-9]'),
    city        TEXT NOT NULL,
    sort_name   TEXT GENERATED ALWAYS AS (
        replace(replace(replace(replace(replace(replace(replace(replace(replace(
        replace(replace(replace(replace(replace(replace(replace(replace(replace(lower(name),
        'ą', 'a~'), 'ć', 'c~'), 'ę', 'e~'), 'ł', 'l~'), 'ń', 'n~'), 'ó', 'o~'), 'ś', 's~'), 'ź', 'z~'), 'ż', 'z~~'),
        'Ą', 'a~'), 'Ć', 'c~'), 'Ę', 'e~'), 'Ł', 'l~'), 'Ń', 'n~'), 'Ó', 'o~'), 'Ś', 's~'), 'Ź', 'z~'), 'Ż', 'z~~')
    ) VIRTUAL
) STRICT;

CREATE INDEX customers_by_name ON customers (sort_name);
CREATE INDEX customers_by_group ON customers (group_id);

CREATE TABLE product_categories (
    id   INTEGER PRIMARY KEY,
    name TEXT NOT NULL UNIQUE CHECK (name <> '')
) STRICT;

CREATE TABLE units (
    id   INTEGER PRIMARY KEY,
    name TEXT NOT NULL UNIQUE CHECK (name <> '')
) STRICT;

-- symbol is what the clerk types instead of looking for the name.
CREATE TABLE products (
    id          INTEGER PRIMARY KEY,
    name        TEXT NOT NULL UNIQUE CHECK (name <> ''),
    symbol      TEXT NOT NULL UNIQUE COLLATE NOCASE CHECK (symbol <> ''),
    category_id INTEGER NOT NULL REFERENCES product_categories (id),
    unit_id     INTEGER NOT NULL REFERENCES units (id),
    net_price   INTEGER NOT NULL CHECK (net_price > 0),
    vat         INTEGER NOT NULL CHECK (vat IN (0, 5, 8, 23)),
    sort_name   TEXT GENERATED ALWAYS AS (
        replace(replace(replace(replace(replace(replace(replace(replace(replace(
        replace(replace(replace(replace(replace(replace(replace(replace(replace(lower(name),
        'ą', 'a~'), 'ć', 'c~'), 'ę', 'e~'), 'ł', 'l~'), 'ń', 'n~'), 'ó', 'o~'), 'ś', 's~'), 'ź', 'z~'), 'ż', 'z~~'),
        'Ą', 'a~'), 'Ć', 'c~'), 'Ę', 'e~'), 'Ł', 'l~'), 'Ń', 'n~'), 'Ó', 'o~'), 'Ś', 's~'), 'Ź', 'z~'), 'Ż', 'z~~')
    ) VIRTUAL
) STRICT;

CREATE INDEX products_by_name ON products (sort_name);
CREATE INDEX products_by_category ON products (category_id);

-- An order may still be without its customer, discount, advance and total: NULL is "not entered", which is not 0. Codes
-- of payment terms: G cash, K card, Z on delivery, P7, P14, P30 and P60 transfer within so many days. label_color is
-- &HBBGGRR, NULL for no label.
CREATE TABLE orders (
    id            INTEGER PRIMARY KEY,
    number        TEXT NOT NULL UNIQUE CHECK (number GLOB 'ZAM/[0-9][0-9][0-9][0-9]/[0-9][0-9][0-9][0-9]*'),
    customer_id   INTEGER REFERENCES customers (id),
    order_date    TEXT NOT NULL CHECK (order_date IS date(order_date)),
    delivery_date TEXT CHECK (delivery_date IS date(delivery_date) AND delivery_date >= order_date),
    payment_terms TEXT NOT NULL DEFAULT 'P14' CHECK (payment_terms IN ('G', 'K', 'Z', 'P7', 'P14', 'P30', 'P60')),
    discount      REAL CHECK (discount BETWEEN 0 AND 100),
    advance       INTEGER CHECK (advance >= 0),
    total         INTEGER CHECK (total >= 0),
    priority      INTEGER NOT NULL DEFAULT 3 CHECK (priority BETWEEN 1 AND 5),
    remarks       TEXT,
    label_color   INTEGER CHECK (label_color BETWEEN 0 AND 16777215)
) STRICT;

CREATE INDEX orders_by_customer ON orders (customer_id);
CREATE INDEX orders_by_date ON orders (order_date);

-- A line holds its product's name, unit and price as they were agreed: the catalogue may change afterwards. All of it
-- may be NULL, "not entered". line is the running number on the order.
CREATE TABLE order_lines (
    order_id      INTEGER NOT NULL REFERENCES orders (id) ON DELETE CASCADE,
    line          INTEGER NOT NULL CHECK (line > 0),
    product_id    INTEGER REFERENCES products (id),
    name          TEXT CHECK (name <> ''),
    quantity      REAL CHECK (quantity > 0),
    unit_id       INTEGER REFERENCES units (id),
    net_price     INTEGER CHECK (net_price >= 0),
    vat           INTEGER CHECK (vat IN (0, 5, 8, 23)),
    delivery_date TEXT CHECK (delivery_date IS date(delivery_date)),
    PRIMARY KEY (order_id, line)
) STRICT, WITHOUT ROWID;

CREATE INDEX order_lines_by_product ON order_lines (product_id);
