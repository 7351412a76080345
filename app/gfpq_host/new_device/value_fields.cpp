// SPDX-License-Identifier: MIT
#include "new_device/value_fields.h"

#include "new_device/problem_line.h"
#include "programmer/panel_form.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace {

enum COLUMN
{
    TITLE,
    EDITOR,
    SOURCE,
};

// What an editor shows at least.
constexpr int EDITOR_CHARACTERS = 14;

// Names of the widgets begin with these; the key follows.
const QString EDITOR_NAME = QStringLiteral("value_");
const QString SOURCE_NAME = QStringLiteral("source_");
const QString PROBLEM_NAME = QStringLiteral("problem_");

// Values that take other texts than their choices.
const QStringList OPEN_CHOICES = {QStringLiteral("voltage"), QStringLiteral("density"), QStringLiteral("erase")};

} // namespace

VALUE_FIELDS::VALUE_FIELDS(NEW_DEVICE_DRAFT& draft) : m_draft(draft)
{
    create_fields();
    show_values();
}

// Two lines of the grid for a value: the second one is for its problem.
void VALUE_FIELDS::create_fields()
{
    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(TITLE, 1);
    grid->setColumnStretch(EDITOR, 1);
    for (const DRAFT_ROW& row : m_draft.rows())
        create_field(row, grid);
    grid->setRowStretch(grid->rowCount(), 1);
    keep_wheel_from_fields(this);
}

void VALUE_FIELDS::create_field(const DRAFT_ROW& row, QGridLayout* grid)
{
    FIELD field;
    field.key = row.key;
    QWidget* editor = create_editor(row, field);
    editor->setObjectName(EDITOR_NAME + row.key);
    editor->setAccessibleName(row.title);
    editor->setMinimumWidth(editor->fontMetrics().averageCharWidth() * EDITOR_CHARACTERS);
    auto* title = new QLabel(row.title);
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    title->setBuddy(editor);
    field.source = new QLabel;
    field.source->setObjectName(SOURCE_NAME + row.key);
    field.source->setTextFormat(Qt::PlainText);
    field.problem = new PROBLEM_LINE(PROBLEM_NAME + row.key);

    const int line = grid->rowCount();
    grid->addWidget(title, line, TITLE);
    grid->addWidget(editor, line, EDITOR);
    grid->addWidget(field.source, line, SOURCE);
    grid->addWidget(field.problem, line + 1, EDITOR, 1, SOURCE - EDITOR + 1);
    m_fields.push_back(field);
}

QWidget* VALUE_FIELDS::create_editor(const DRAFT_ROW& row, FIELD& field)
{
    if (row.choices.isEmpty()) {
        field.edit = new QLineEdit;
        take_when_left(row.key, field.edit);
        return field.edit;
    }
    field.combo = new QComboBox;
    field.combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    if (OPEN_CHOICES.contains(row.key)) {
        field.combo->setEditable(true);
        field.combo->setInsertPolicy(QComboBox::NoInsert);
        field.combo->setCompleter(nullptr);
        take_when_left(row.key, field.combo->lineEdit());
    }
    connect(field.combo, QOverload<int>::of(&QComboBox::activated), this,
            [this, key = row.key, combo = field.combo](int choice) { take(key, combo->itemText(choice)); });
    return field.combo;
}

// With Return, which leaves the focus where it is, the dialog is accepted, which takes the text.
void VALUE_FIELDS::take_when_left(const QString& key, QLineEdit* edit)
{
    connect(edit, &QLineEdit::editingFinished, this, [this, key, edit] {
        if (!edit->hasFocus())
            take(key, edit->text());
    });
}

const DRAFT_ROW* VALUE_FIELDS::row_of(const QString& key) const
{
    const std::vector<DRAFT_ROW>& rows = m_draft.rows();
    const auto found = std::find_if(rows.begin(), rows.end(), [&key](const DRAFT_ROW& row) { return row.key == key; });
    return found == rows.end() ? nullptr : &*found;
}

void VALUE_FIELDS::show_values()
{
    for (const FIELD& field : m_fields) {
        if (const DRAFT_ROW* row = row_of(field.key))
            show_row(*row, field);
    }
}

// A text that is not among the choices is shown all the same: nothing is chosen for the user.
void VALUE_FIELDS::show_row(const DRAFT_ROW& row, const FIELD& field)
{
    if (field.edit && field.edit->text() != row.text)
        field.edit->setText(row.text);
    if (field.combo) {
        const QSignalBlocker silence(field.combo);
        QStringList choices = row.choices;
        if (!choices.contains(row.text))
            choices.prepend(row.text);
        field.combo->clear();
        field.combo->addItems(choices);
        field.combo->setCurrentIndex(field.combo->findText(row.text));
    }
    field.source->setText(row.source);
    field.problem->show_problem(row.problem);
    QWidget* editor = field.edit ? static_cast<QWidget*>(field.edit) : field.combo;
    editor->setAccessibleDescription(row.problem.isEmpty() ? row.source : row.problem);
}

void VALUE_FIELDS::take(const QString& key, const QString& text)
{
    const DRAFT_ROW* row = row_of(key);
    if (!row || row->text == text)
        return;
    m_draft.set_value(key, text);
    show_values();
    emit changed();
}

void VALUE_FIELDS::take_entered()
{
    for (const FIELD& field : m_fields) {
        if (const QLineEdit* edit = field.edit ? field.edit : field.combo->lineEdit())
            take(field.key, edit->text());
    }
}

void VALUE_FIELDS::go_to(int row)
{
    if (row < 0 || row >= static_cast<int>(m_fields.size()))
        return;
    const FIELD& field = m_fields[static_cast<std::size_t>(row)];
    if (field.combo)
        field.combo->setFocus();
    else
        field.edit->setFocus();
}
