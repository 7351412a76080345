// SPDX-License-Identifier: MIT
#include "programmer/detected_dialog.h"

#include "dialog/choice_combo.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

DETECTED_DIALOG::DETECTED_DIALOG(QWidget* parent, const QString& id, const std::vector<GFPDB_RECORD>& devices,
                                 const std::string& current)
    : QDialog(parent), m_list(new QListWidget)
{
    setWindowTitle(tr("Detect"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* label = new QLabel(tr("The chip has the ID %1. Devices with this ID:").arg(id));
    label->setBuddy(m_list);
    label->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("m_detected_list"));
    for (const GFPDB_RECORD& device : devices) {
        m_list->addItem(device_title(device));
        if (device.row.name == current)
            m_list->setCurrentRow(m_list->count() - 1);
    }
    if (m_list->currentRow() < 0)
        m_list->setCurrentRow(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(m_list);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    m_list->setFocus();
}

int DETECTED_DIALOG::selected() const
{
    return m_list->currentRow();
}
