-- SPDX-FileCopyrightText: 2026 The KorDaoUC authors
-- SPDX-License-Identifier: MIT

-- New rows follow those of seed.sql, which bring their own numbers.
SELECT setval(pg_get_serial_sequence('customer_groups', 'id'), (SELECT max(id) FROM customer_groups));
SELECT setval(pg_get_serial_sequence('customers', 'id'), (SELECT max(id) FROM customers));
SELECT setval(pg_get_serial_sequence('product_categories', 'id'), (SELECT max(id) FROM product_categories));
SELECT setval(pg_get_serial_sequence('units', 'id'), (SELECT max(id) FROM units));
SELECT setval(pg_get_serial_sequence('products', 'id'), (SELECT max(id) FROM products));
SELECT setval(pg_get_serial_sequence('orders', 'id'), (SELECT max(id) FROM orders));
