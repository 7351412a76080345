// SPDX-License-Identifier: MIT

// The table of devices: what it shows, its order by each column, and what finds a device.
#include "database/device_model.h"
#include "test_rows.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

// An own device: "NAME ID DENSITY VOLTAGE DIES CHANGED", with "-" for what it does not have.
LISTED_DEVICE device(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '));
    const auto value = [&words](int place) {
        const QString word = words.value(place, QStringLiteral("-"));
        return word == QLatin1String("-") ? std::string() : word.toStdString();
    };
    LISTED_DEVICE device;
    GFPDB_ROW& row = device.device.row;
    row.name = value(0);
    row.device_id = value(1);
    row.density = value(2);
    row.voltage = value(3);
    if (!value(4).empty())
        row.total_die = std::stoi(value(4));
    row.saved_at = value(5);
    row.family = 3;
    row.scheme = 13;
    return device;
}

LISTED_DEVICE builtin(const char* name)
{
    LISTED_DEVICE device;
    device.device.row.name = name;
    device.address_bytes = "4";
    return device;
}

} // namespace

class TEST_DEVICE_MODEL : public QObject
{
    Q_OBJECT

private:
    void show(const QStringList& devices)
    {
        std::vector<LISTED_DEVICE> listed;
        for (const QString& text : devices)
            listed.push_back(device(text));
        m_model = std::make_unique<DEVICE_MODEL>([this](const GFPDB_RECORD& asked) {
            m_read.append(QString::fromStdString(asked.row.name));
            return asked.row.name == "none" ? std::string() : asked.row.name.substr(0, 1);
        });
        m_read.clear();
        m_model->show(std::move(listed));
    }

    QStringList column(int column = DEVICE_MODEL::NAME) const
    {
        QStringList texts;
        for (int row = 0; row < m_model->rowCount(); ++row)
            texts.append(m_model->index(row, column).data().toString());
        return texts;
    }
    QString names() const { return column().join(QLatin1Char(' ')); }

    std::unique_ptr<DEVICE_MODEL> m_model;
    QStringList m_read;

private slots:
    void each_column_has_its_order_data()
    {
        rows<int, QString, QStringList>({
            {"names without regard to case", DEVICE_MODEL::NAME, "a B c", {"c", "B", "a"}},
            {"makers", DEVICE_MODEL::MAKER, "unknown m w", {"w 0xEF", "m 0xC2", "unknown"}},
            {"IDs by their bytes", DEVICE_MODEL::DEVICE_ID, "x z y", {"y c22019", "x 0xC2", "z C2-20-18"}},
            {"densities by their size",
             DEVICE_MODEL::DENSITY,
             "k m b g",
             {"g - 1Gb", "m - 8Mb", "b - 8MB", "k - 64Kb"}},
            {"voltages", DEVICE_MODEL::VOLTAGE, "a b", {"b - - 3.3V", "a - - 1.8V"}},
            {"dies by their number", DEVICE_MODEL::DIES, "none two ten", {"ten - - - 10", "none", "two - - - 2"}},
            {"times",
             DEVICE_MODEL::CHANGED_AT,
             "a b c",
             {"c - - - - 2026-01-10T00:00:00Z", "b - - - - 2026-01-09T23:00:00Z", "a"}},
            {"the same by their names", DEVICE_MODEL::DENSITY, "a b c", {"c - 8Mb", "a - 1MB", "b - 8Mb"}},
        });
    }

    void each_column_has_its_order()
    {
        const auto [column, ascending, devices] = row<int, QString, QStringList>();
        show(devices);
        m_model->sort(column, Qt::AscendingOrder);
        QCOMPARE(names(), ascending);

        m_model->sort(column, Qt::DescendingOrder);
        QStringList descending = ascending.split(QLatin1Char(' '));
        std::reverse(descending.begin(), descending.end());
        QCOMPARE(names(), descending.join(QLatin1Char(' ')));
    }

    void what_finds_a_device_data()
    {
        rows<QString, QString>({
            {"nothing", "", "Alpha Beta Gamma"},
            {"blanks", "  ", "Alpha Beta Gamma"},
            {"a part of its name", "ALPH", "Alpha"},
            {"words in any order", "8mb alpha", "Alpha"},
            {"words of different devices", "alpha 1.8v", ""},
            {"density", "128mb", "Beta"},
            {"voltage", "1.8V", "Beta"},
            {"maker", "winbond", "Gamma"},
            {"maker and density", "winbond 8mb", "Gamma"},
            {"ID with blanks", "C2 20 18", "Beta"},
            {"ID as C has bytes", "0xC2 0x20 0x18", "Beta"},
            {"ID in one", "0xc22018", "Beta"},
            {"ID with colons", "c2:20:18", "Beta"},
            {"ID with h", "C22018h", "Beta"},
            {"the beginning of IDs", "C2", "Alpha Beta"},
            {"the beginning of an ID and a name", "c2 beta", "Beta"},
            {"an ID and another name", "c22018 alpha", ""},
            {"not the middle of an ID", "2018", ""},
            {"a longer ID", "C2 20 18 00", ""},
        });
    }

    void what_finds_a_device()
    {
        const auto [text, found] = row<QString, QString>();
        show({QStringLiteral("Gamma 0xEF,0x40,0x14 8Mb 3.3V"), QStringLiteral("Beta 0xC2,0x20,0x18 128Mb 1.8V"),
              QStringLiteral("Alpha C22814 8Mb 3.3V")});
        m_model->filter(text);
        QCOMPARE(names(), found);
        QCOMPARE(m_model->total(), 3);
    }

    void a_filter_and_an_order_stay_when_devices_come()
    {
        show({QStringLiteral("b1"), QStringLiteral("a1"), QStringLiteral("a2")});
        m_model->filter(QStringLiteral("1"));
        m_model->sort(DEVICE_MODEL::NAME, Qt::DescendingOrder);
        m_model->show({device(QStringLiteral("a1")), device(QStringLiteral("c1")), device(QStringLiteral("c2"))});
        QCOMPARE(names(), QStringLiteral("c1 a1"));
    }

    void address_bytes_are_read_when_they_are_shown()
    {
        show({QStringLiteral("3a"), QStringLiteral("4b"), QStringLiteral("none")});
        QCOMPARE(m_read, QStringList());
        QCOMPARE(m_model->index(1, DEVICE_MODEL::ADDRESS_BYTES).data().toString(), QStringLiteral("\u2026"));
        QTRY_COMPARE(m_model->index(1, DEVICE_MODEL::ADDRESS_BYTES).data().toString(), QStringLiteral("4"));
        QCOMPARE(m_read, QStringList{QStringLiteral("4b")});

        // What was not read yet comes after the others.
        m_model->sort(DEVICE_MODEL::ADDRESS_BYTES, Qt::AscendingOrder);
        QCOMPARE(names(), QStringLiteral("4b 3a none"));
        QSignalSpy told(m_model.get(), &QAbstractItemModel::dataChanged);
        column(DEVICE_MODEL::ADDRESS_BYTES);
        QTRY_COMPARE(m_read.size(), 3);
        QTRY_VERIFY(!told.isEmpty());
        QCOMPARE(column(DEVICE_MODEL::ADDRESS_BYTES),
                 (QStringList{QStringLiteral("4"), QStringLiteral("3"), QString()}));
        m_model->sort(DEVICE_MODEL::ADDRESS_BYTES, Qt::AscendingOrder);
        QCOMPARE(names(), QStringLiteral("none 3a 4b"));
    }

    // Settings of another version may name a column that there is not.
    void the_table_follows_the_rules_of_models()
    {
        show({QStringLiteral("b1"), QStringLiteral("a1"), QStringLiteral("a2")});
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_model->filter(QStringLiteral("1"));
        m_model->sort(DEVICE_MODEL::NAME, Qt::DescendingOrder);
        m_model->show({device(QStringLiteral("c1")), device(QStringLiteral("a1"))});
        for (const int missing : {-1, int(DEVICE_MODEL::COLUMNS)})
            m_model->sort(missing, Qt::AscendingOrder);
        QCOMPARE(names(), QStringLiteral("c1 a1"));
        column(DEVICE_MODEL::ADDRESS_BYTES);
        QTRY_COMPARE(m_read.size(), 2);
        QVERIFY(!m_model->headerData(DEVICE_MODEL::COLUMNS, Qt::Horizontal, Qt::DisplayRole).isValid());
    }

    void built_in_devices_serve_all()
    {
        show({});
        m_model->show({builtin("P"), device(QStringLiteral("Q"))});
        const auto cells = [this](int row) {
            QStringList texts;
            for (const int column : {DEVICE_MODEL::FAMILY, DEVICE_MODEL::MODE, DEVICE_MODEL::KIND})
                texts.append(m_model->index(row, column).data().toString());
            return texts.join(QLatin1Char('|'));
        };
        QCOMPARE(cells(0), QStringLiteral("all|all|Built in"));
        QVERIFY(cells(1).endsWith(QLatin1String("|Active Serial x4|Own")));
        QVERIFY(m_model->at(0).is_builtin());
        QVERIFY(!m_model->at(1).is_builtin());
        QCOMPARE(m_model->index(0, DEVICE_MODEL::ADDRESS_BYTES).data().toString(), QStringLiteral("4"));
    }

    void times_are_those_of_the_user()
    {
        show({QStringLiteral("a - - - - 2026-01-10T22:30:00Z")});
        const QDateTime time(QDate(2026, 1, 10), QTime(22, 30), Qt::UTC);
        QCOMPARE(m_model->index(0, DEVICE_MODEL::CHANGED_AT).data().toString(),
                 time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
    }
};

QTEST_MAIN(TEST_DEVICE_MODEL)
#include "test_device_model.moc"
