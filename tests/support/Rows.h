// SPDX-License-Identifier: MIT
// The columns and rows of a test's data, a line each.
#ifndef ORBISDIAL_TESTS_ROWS_H
#define ORBISDIAL_TESTS_ROWS_H

#include <QtTest>

// Usage: const Rows<QString, int> row("name", "status"); row("what it is about", "Home", 0);
template <class... Values>
class Rows {
public:
    // Names the columns.
    template <class... Names>
    explicit Rows(Names... names) {
        (QTest::addColumn<Values>(names), ...);
    }

    void operator()(const char* name, const Values&... values) const { (QTest::newRow(name) << ... << values); }
};

// One column of names, of which each is its own row.
inline void nameRows(const char* column, std::initializer_list<const char*> names) {
    const Rows<QString> row(column);
    for (const char* name : names) row(name, name);
}

// What the row that runs holds in a column.
template <class Value = QString>
Value cell(const char* column) {
    return *static_cast<Value*>(QTest::qData(column, qMetaTypeId<Value>()));
}

#endif
