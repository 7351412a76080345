// Building a dialog's Designer form.
#pragma once

#include <QDialog>
#include <QLoggingCategory>
#include <QScopeGuard>

// Builds `form` on `dialog`. Building ends with the automatic connection by object name, which recognises none of the
// module's slot names and would print a warning for each: those are held back.
template <typename FORM>
void gfpq_build_form(FORM& form, QDialog* dialog)
{
    QLoggingCategory& category = *QLoggingCategory::defaultCategory();
    const bool warns = category.isWarningEnabled();
    const auto restore = qScopeGuard([&category, warns] { category.setEnabled(QtWarningMsg, warns); });
    category.setEnabled(QtWarningMsg, false);
    form.setupUi(dialog);
}
