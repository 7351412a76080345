// SPDX-License-Identifier: MIT

// The slots of the dialogs, by their method index: other code may run them by number.
#include "dialog_test.h"

#include "dialog/gfpq_edit_template_dlg.h"

#include <QItemSelection>
#include <QMetaMethod>

namespace {

struct SLOT_ENTRY
{
    const char* signature;
    const char* return_type;
    QList<QByteArray> parameters;
};

const SLOT_ENTRY DIALOG_SLOTS[] = {
    {"device_changed(QItemSelection,QItemSelection)", "void", {"current_selection", "previous_selection"}},
    {"on_directory_editing_finished()", "void", {}},
    {"on_browse_directory()", "void", {}},
    {"on_ok_clicked()", "void", {}},
    {"on_apply_clicked()", "bool", {}},
    {"on_cancel_clicked()", "void", {}},
    {"on_delete_clicked()", "void", {}},
    {"update_filter(QString)", "void", {"filter_string"}},
    {"on_change_family(int)", "void", {"cursel"}},
    {"on_change_config_mode(int)", "void", {"cursel"}},
    {"on_change_voltage(int)", "void", {"cursel"}},
    {"on_change_density(int)", "void", {"cursel"}},
    {"on_change_flow_template(int)", "void", {"cursel"}},
    {"on_device_name_editing_finished()", "void", {}},
    {"on_device_id_editing_finished()", "void", {}},
    {"on_total_die_edit_editing_finished()", "void", {}},
    {"on_clock_cycle_editing_finished()", "void", {}},
    {"on_clock_cycle_x4_editing_finished()", "void", {}},
    {"on_tab_index_changed(int)", "void", {"index"}},
    {"on_save_template_toggled(bool)", "void", {"checked"}},
    {"on_edit_template_clicked()", "void", {}},
};

template <std::size_t SIZE>
void compare_slots(const QMetaObject& meta, const SLOT_ENTRY (&expected)[SIZE])
{
    QCOMPARE(meta.methodCount() - meta.methodOffset(), static_cast<int>(SIZE));
    for (std::size_t index = 0; index < SIZE; ++index) {
        const QMetaMethod method = meta.method(meta.methodOffset() + static_cast<int>(index));
        QCOMPARE(method.methodSignature(), QByteArray(expected[index].signature));
        QCOMPARE(QByteArray(method.typeName()), QByteArray(expected[index].return_type));
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.parameterNames(), expected[index].parameters);
    }
}

} // namespace

class TEST_META_OBJECT : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_dialog_has_its_21_slots_in_order() { compare_slots(GFPQ_DLG::staticMetaObject, DIALOG_SLOTS); }

    void the_template_editor_has_its_two_slots()
    {
        const SLOT_ENTRY expected[] = {{"on_close_clicked()", "void", {}}, {"on_remove_clicked()", "void", {}}};

        compare_slots(GFPQ_EDIT_TEMPLATE_DLG::staticMetaObject, expected);
    }

    void the_classes_have_their_names_and_bases()
    {
        QCOMPARE(GFPQ_DLG::staticMetaObject.className(), "GFPQ_DLG");
        QCOMPARE(GFPQ_DLG::staticMetaObject.superClass()->className(), "KOVQ_DIALOG");
        QCOMPARE(GFPQ_EDIT_TEMPLATE_DLG::staticMetaObject.className(), "GFPQ_EDIT_TEMPLATE_DLG");
        QCOMPARE(GFPQ_EDIT_TEMPLATE_DLG::staticMetaObject.superClass()->className(), "KOVQ_DIALOG");
    }

    void the_dialog_knows_itself_and_its_bases_by_name()
    {
        GFPQ_DLG& dialog = open();

        QCOMPARE(dialog.qt_metacast("GFPQ_DLG"), static_cast<void*>(&dialog));
        QVERIFY(dialog.qt_metacast("KOVQ_DIALOG") != nullptr);
        QVERIFY(dialog.qt_metacast("QDialog") != nullptr);
        QVERIFY(dialog.qt_metacast("GFPQ_EDIT_TEMPLATE_DLG") == nullptr);
    }

    void the_argument_type_of_device_changed_is_registered()
    {
        GFPQ_DLG& dialog = open();
        for (int argument = 0; argument < 2; ++argument) {
            int type = -1;
            void* arguments[] = {&type, &argument};

            dialog.qt_metacall(QMetaObject::RegisterMethodArgumentMetaType, GFPQ_DLG::staticMetaObject.methodOffset(),
                               arguments);

            QCOMPARE(type, qMetaTypeId<QItemSelection>());
        }
    }
};

GFPQ_TEST_MAIN(TEST_META_OBJECT)

#include "test_meta_object.moc"
