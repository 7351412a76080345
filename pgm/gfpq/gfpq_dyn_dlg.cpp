// SPDX-License-Identifier: MIT

// The module's entry point.

#include "gfpq_dyn_dlg.h"

#include "dialog/gfpq_dlg.h"
#include "text_catalogue.h"

#include <QApplication>
#include <QEvent>
#include <QLoggingCategory>

#include <exception>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(lc_gfpq, "gfpq.dialog")

// Closes a dialog when its parent or a window above it is about to be deleted (QObject::deleteLater), and removes it
// from the parent, which would otherwise delete an object on the stack. GUI thread only.
class PARENT_WATCH : public QObject
{
public:
    explicit PARENT_WATCH(QDialog& dialog) : m_dialog(dialog)
    {
        for (QWidget* ancestor = dialog.parentWidget(); ancestor != nullptr; ancestor = ancestor->parentWidget())
            ancestor->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::DeferredDelete) {
            qCWarning(lc_gfpq, "The parent of the Configuration Device dialog is deleted: the dialog is closed.");
            m_dialog.setParent(nullptr, m_dialog.windowFlags());
            m_dialog.reject();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QDialog& m_dialog;
};

void run_dialog(QWidget* parent, GFPQ_DYN_DLG_ARGS& args, bool enable_family, bool enable_config_mode, bool enable_edit)
{
    const QStringList texts_inside(QStringLiteral(":/gfpq/translations"));
    const TEXT_CATALOGUE database_texts(QStringLiteral("gfpdb"), texts_inside);
    const TEXT_CATALOGUE texts(QStringLiteral("gfpq"), texts_inside);
    const std::map<int, std::vector<int>> family_schemes = args.family_schemes;
    const std::string device_name = args.device_name;
    GFPQ_DLG dialog(parent, args.family, args.config_scheme, device_name, enable_family, enable_config_mode,
                    enable_edit, family_schemes);
    const PARENT_WATCH parent_watch(dialog);
    dialog.exec();

    // Only the copy can fail, so the record is written as a whole or not at all.
    std::string chosen_name = dialog.device_name();
    args.family = dialog.family();
    args.config_scheme = dialog.config_scheme();
    args.device_name = std::move(chosen_name);
}

} // namespace

extern "C" void gfpq_dyn_dlg(QWidget* parent, GFPQ_DYN_DLG_ARGS* args, bool enable_family, bool enable_config_mode,
                             bool enable_edit)
{
    if (args == nullptr) {
        qCCritical(lc_gfpq, "The Configuration Device dialog was called without an exchange record.");
        return;
    }
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        qCCritical(lc_gfpq, "The Configuration Device dialog needs a QApplication, and there is none.");
        return;
    }
    // No exception may cross into a caller that is not C++.
    try {
        run_dialog(parent, *args, enable_family, enable_config_mode, enable_edit);
    } catch (const std::exception& error) {
        qCCritical(lc_gfpq, "The Configuration Device dialog ended with an error: %s", error.what());
    } catch (...) {
        qCCritical(lc_gfpq, "The Configuration Device dialog ended with an unknown error.");
    }
}
