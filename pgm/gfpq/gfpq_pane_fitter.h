// Room for the device fields, however long their texts are in the user's language.
#pragma once

#include <QObject>

class QScrollArea;
class QSplitter;

// Keeps the pane of `splitter` that holds `area`, its last, so wide that the contents of the area are never cut
// sideways, and gives it what the contents would like to have, up to two thirds of the splitter. From the moment on
// that the user moves the handle, it stays where the user puts it. Owned by `splitter`.
class GFPQ_PANE_FITTER : public QObject
{
    Q_OBJECT

public:
    // The area must have its contents.
    GFPQ_PANE_FITTER(QSplitter& splitter, const QScrollArea& area);

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void fit();
    void leave_to_user();

private:
    // The width of the area around contents of the width `contents`.
    int width_around(int contents) const;

    QSplitter& m_splitter;
    const QScrollArea& m_area;
};
