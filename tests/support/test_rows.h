// SPDX-License-Identifier: MIT

// The table of a test function's data, in short.
//
//     void a_mode_is_preselected_data() { rows<int, QString>({{"lowest", 0, "first"}, {"above", 26, "none"}}); }
//     void a_mode_is_preselected()
//     {
//         const auto [scheme, text] = row<int, QString>();
//
// Each row begins with its name. Texts are UTF-8. Both calls name the same types; a table of one column gives its
// value.
#pragma once

#include <QStringList>
#include <QTest>

#include <initializer_list>
#include <tuple>
#include <utility>

namespace test_rows {

// What a cell is written as; Qt's texts take literals.
template <typename T>
struct CELL
{
    using WRITTEN = T;
};

struct TEXT
{
    TEXT(const char* text) : value(QString::fromUtf8(text)) {}
    TEXT(QString text) : value(std::move(text)) {}
    operator QString() const { return value; }

    QString value;
};

struct TEXTS
{
    TEXTS() = default;
    TEXTS(std::initializer_list<TEXT> texts)
    {
        for (const TEXT& text : texts)
            value.append(text.value);
    }
    TEXTS(QStringList texts) : value(std::move(texts)) {}
    operator QStringList() const { return value; }

    QStringList value;
};

template <>
struct CELL<QString>
{
    using WRITTEN = TEXT;
};

template <>
struct CELL<QStringList>
{
    using WRITTEN = TEXTS;
};

// The names that QtTest knows the columns by; it keeps the pointers.
constexpr const char* COLUMN_NAMES[] = {"0", "1", "2", "3", "4", "5", "6", "7"};

template <typename T>
T fetch(std::size_t index)
{
    return *static_cast<T*>(QTest::qData(COLUMN_NAMES[index], qMetaTypeId<T>()));
}

template <typename... COLUMNS, typename LINE, std::size_t... INDEXES>
void add_rows(const LINE& lines, std::index_sequence<INDEXES...>)
{
    (QTest::addColumn<COLUMNS>(COLUMN_NAMES[INDEXES]), ...);
    for (const auto& line : lines) {
        QTestData& data = QTest::newRow(std::get<0>(line));
        (void(data << static_cast<COLUMNS>(std::get<INDEXES + 1>(line))), ...);
    }
}

template <typename... COLUMNS, std::size_t... INDEXES>
std::tuple<COLUMNS...> fetch_all(std::index_sequence<INDEXES...>)
{
    return {fetch<COLUMNS>(INDEXES)...};
}

} // namespace test_rows

template <typename... COLUMNS>
void rows(std::initializer_list<std::tuple<const char*, typename test_rows::CELL<COLUMNS>::WRITTEN...>> lines)
{
    test_rows::add_rows<COLUMNS...>(lines, std::index_sequence_for<COLUMNS...>());
}

// Rows of one text, which is the row's name.
template <typename COLUMN>
void rows_named(std::initializer_list<const char*> names)
{
    QTest::addColumn<COLUMN>(test_rows::COLUMN_NAMES[0]);
    for (const char* name : names)
        QTest::newRow(name) << static_cast<COLUMN>(typename test_rows::CELL<COLUMN>::WRITTEN(name));
}

// The current row.
template <typename... COLUMNS>
auto row()
{
    if constexpr (sizeof...(COLUMNS) == 1)
        return std::get<0>(test_rows::fetch_all<COLUMNS...>(std::index_sequence_for<COLUMNS...>()));
    else
        return test_rows::fetch_all<COLUMNS...>(std::index_sequence_for<COLUMNS...>());
}
