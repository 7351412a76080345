// SPDX-License-Identifier: MIT

// Where charts go on pages.
#include "gfpc_layout.h"
#include "test_rows.h"

Q_DECLARE_METATYPE(std::vector<GFPC_COLUMN>)

class TEST_GFPC_LAYOUT : public QObject
{
    Q_OBJECT

private:
    static constexpr QSizeF PORTRAIT = QSizeF(700.0, 1000.0);
    static constexpr QSizeF LANDSCAPE = QSizeF(1000.0, 700.0);

    // Shapes of 100, each cut above it.
    static GFPC_COLUMN column(double width, int shapes)
    {
        GFPC_COLUMN made = {width, shapes * 100.0, {}};
        for (int at = 1; at < shapes; ++at)
            made.breaks.push_back(at * 100.0);
        return made;
    }

    // "portrait 0.5", then of each page its pieces: the chart and the number of the part, its x, where it begins and
    // ends.
    static QStringList text_of(const GFPC_LAYOUT& layout)
    {
        QStringList lines = {QStringLiteral("%1 %2")
                                 .arg(QLatin1String(layout.is_landscape ? "landscape" : "portrait"))
                                 .arg(layout.scale, 0, 'g', 3)};
        for (const GFPC_PAGE& page : layout.pages) {
            QStringList pieces;
            for (const GFPC_PIECE& piece : page.pieces)
                pieces += QStringLiteral("%1.%2 @%3 %4-%5")
                              .arg(piece.column)
                              .arg(piece.number)
                              .arg(piece.x)
                              .arg(piece.top)
                              .arg(piece.bottom);
            lines += pieces.join(QStringLiteral(", "));
        }
        return lines;
    }

private slots:
    void charts_are_laid_out_data()
    {
        using COLUMNS = std::vector<GFPC_COLUMN>;
        rows<COLUMNS, QStringList>(
            {{"a small one is not enlarged", COLUMNS{column(200, 3)}, {"portrait 1", "0.1 @0 0-300"}},
             {"two side by side",
              COLUMNS{column(500, 2), column(160, 3)},
              {"portrait 1", "0.1 @0 0-200, 1.1 @540 0-300"}},
             {"on the side of the paper",
              COLUMNS{column(500, 2), column(460, 3)},
              {"landscape 1", "0.1 @0 0-200, 1.1 @540 0-300"}},
             {"a high one goes on beside", COLUMNS{column(300, 12)}, {"portrait 1", "0.1 @0 0-900, 0.2 @340 900-1200"}},
             {"smaller, to bring it onto one page", COLUMNS{column(690, 12)}, {"portrait 0.81", "0.1 @0 0-1200"}},
             {"not smaller than can be read",
              COLUMNS{column(600, 41)},
              {"portrait 0.8", "0.1 @0 0-1200", "0.2 @0 1200-2400", "0.3 @0 2400-3600", "0.4 @0 3600-4100"}},
             {"the next one begins where there is room",
              COLUMNS{column(260, 45), column(260, 40)},
              {"portrait 0.8", "0.1 @0 0-1200, 0.2 @300 1200-2400, 0.3 @600 2400-3600",
               "0.4 @0 3600-4500, 1.1 @300 0-1200, 1.2 @600 1200-2400", "1.3 @0 2400-3600, 1.4 @300 3600-4000"}},
             {"a wide one on its side",
              COLUMNS{column(1000, 30)},
              {"landscape 0.8", "0.1 @0 0-800", "0.2 @0 800-1600", "0.3 @0 1600-2400", "0.4 @0 2400-3000"}},
             {"nothing is cut off at the side", COLUMNS{column(4000, 1)}, {"landscape 0.25", "0.1 @0 0-100"}},
             {"a shape higher than the page is cut",
              COLUMNS{{690, 3900, {3800}}},
              {"portrait 0.8", "0.1 @0 0-1216", "0.2 @0 1216-2432", "0.3 @0 2432-3648", "0.4 @0 3648-3900"}}});
    }

    void charts_are_laid_out()
    {
        const auto [columns, pages] = row<std::vector<GFPC_COLUMN>, QStringList>();

        QCOMPARE(text_of(gfpc_lay_out(columns, PORTRAIT, LANDSCAPE, {0.5, 0.8})), pages);
    }

    void a_single_page_has_everything()
    {
        const GFPC_PAGE page = gfpc_single_page({column(300, 40), column(5000, 2)});

        QCOMPARE(page.size, QSizeF(300.0 + GFPC_COLUMN_GAP + 5000.0, 4000.0 + GFPC_TITLE_HEIGHT));
        QCOMPARE(text_of({false, 1.0, {page}}).last(), QStringLiteral("0.1 @0 0-4000, 1.1 @340 0-200"));
    }
};

QTEST_GUILESS_MAIN(TEST_GFPC_LAYOUT)

#include "test_gfpc_layout.moc"
