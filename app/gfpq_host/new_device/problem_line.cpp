// SPDX-License-Identifier: MIT
#include "new_device/problem_line.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

PROBLEM_LINE::PROBLEM_LINE(const QString& object_name) : m_label(new QLabel)
{
    auto* icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    m_label->setObjectName(object_name);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(m_label, 1);
    hide();
}

void PROBLEM_LINE::show_problem(const QString& problem)
{
    const bool is_new = problem != m_label->text();
    m_label->setText(problem);
    setVisible(!problem.isEmpty());
    if (!is_new || problem.isEmpty())
        return;
    QAccessibleEvent alert(m_label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
