// SPDX-License-Identifier: MIT
#include "charts/chart_saver.h"

#include "record_writer.h"

#include "gfpc/gfpc_charts.h"
#include "gfpdb/gfpdb_text.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

namespace {

const QString PDF_ENDING = QStringLiteral("pdf");
const QString SVG_ENDING = QStringLiteral("svg");

} // namespace

// The ending follows the kind of file that is chosen, also where the user types none.
QString CHART_SAVER::ask_for_file(QWidget* window, const GFPDB_RECORD& record)
{
    const QString pdf = tr("PDF document (*.pdf)");
    const QString svg = tr("SVG picture (*.svg)");
    QFileDialog dialog(window, tr("Save Flow Charts"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters({pdf, svg});
    dialog.setDefaultSuffix(PDF_ENDING);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog, svg](const QString& filter) {
        dialog.setDefaultSuffix(filter == svg ? SVG_ENDING : PDF_ENDING);
    });
    dialog.selectFile(gfpdb_from_utf8(record_file_name(record, ".pdf")));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString CHART_SAVER::write(const QString& file, const GFPDB_RECORD& record, bool flow_variant)
{
    GFPC_ORDER order;
    order.record = record;
    order.flow_variant = flow_variant;
    order.format = gfpc_format_of(file).value_or(GFPC_FORMAT::PDF);
    order.paper = gfpc_usual_paper();
    order.date = QDate::currentDate();
    QString problem;
    const QByteArray content = gfpc_draw_charts(order, problem);
    if (content.isEmpty())
        return problem;
    std::string reason;
    if (write_record_file(QFile::encodeName(file).toStdString(), content.toStdString(), reason))
        return QString();
    return tr("The file %1 cannot be written: %2").arg(QDir::toNativeSeparators(file), gfpdb_from_utf8(reason));
}

QString CHART_SAVER::save(QWidget* window, const GFPDB_RECORD& record, bool flow_variant)
{
    QString file = ask_for_file(window, record);
    if (file.isEmpty())
        return QString();
    const QString problem = write(file, record, flow_variant);
    if (problem.isEmpty())
        return file;
    QMessageBox box(QMessageBox::Warning, tr("Save Flow Charts"), problem, QMessageBox::Ok, window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return QString();
}
