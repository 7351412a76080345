// SPDX-License-Identifier: MIT

// Random editing sessions on a page, compared after every step with a plain list of what should be there.
//
// rapidcheck prints the seed; RC_PARAMS="seed=..." in the environment repeats a session, and a failing one is shown
// reduced to the steps it takes.
#include "page_stand.h"

#include <rapidcheck.h>

#include <QGraphicsPolygonItem>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>

#include <algorithm>
#include <map>
#include <ostream>

namespace {

constexpr double ARROW = 65;
constexpr const char* DEFAULT_PARAMS = "max_success=100 max_size=80";

enum STEP_KIND
{
    CLICK_ARROW,
    CLICK_SHAPE,
    CTRL_CLICK_SHAPE,
    INSERT,
    DROP,
    DROP_FOREIGN,
    DELETE,
    COPY,
    PASTE_KEY,
    PASTE_COMMAND,
    REFRESH,
    EDIT,
    FOCUS,
    STEP_KIND_COUNT,
};
constexpr const char* STEP_NAMES[STEP_KIND_COUNT] = {
    "click arrow", "click shape", "ctrl+click shape", "insert", "drop", "drop foreign", "delete", "copy",
    "ctrl+v",      "paste",       "refresh",          "edit",   "focus"};

struct STEP
{
    int kind = 0;
    // Which arrow, shape or row, modulo their number.
    int place = 0;
    // Which type, modulo the number of types; also the typed value.
    int what = 0;
};

std::ostream& operator<<(std::ostream& out, const STEP& step)
{
    return out << STEP_NAMES[step.kind] << " #" << step.place << " (" << step.what << ")";
}

rc::Gen<std::vector<STEP>> sessions()
{
    const auto step = rc::gen::build<STEP>(rc::gen::set(&STEP::kind, rc::gen::inRange(0, int(STEP_KIND_COUNT))),
                                           rc::gen::set(&STEP::place, rc::gen::inRange(0, 1000)),
                                           rc::gen::set(&STEP::what, rc::gen::inRange(0, 1000)));
    return rc::gen::container<std::vector<STEP>>(step);
}

// What the page should hold and show.
struct MODEL
{
    struct ACTION
    {
        int id = 0;
        int type = 0;
        std::map<int, std::string> values;
        // The text that was drawn last.
        std::string drawn;
    };

    // What can be seen of an action.
    static std::string text_of(const ACTION& action)
    {
        std::string text;
        for (const auto& value : action.values) {
            if (value.first != 39)
                text += (text.empty() ? "" : "\n") + ("label " + std::to_string(value.first)) + " " + value.second;
        }
        return text;
    }

    ACTION* find(int id)
    {
        const auto found = std::find_if(list.begin(), list.end(), [id](const ACTION& one) { return one.id == id; });
        return found == list.end() ? nullptr : &*found;
    }

    ACTION make(int type)
    {
        static constexpr int FIRST[] = {0, 5, 13, 21, 31, 38, 40};
        ACTION action;
        action.id = ++last_id;
        action.type = type;
        for (int property = FIRST[type]; property < FIRST[type + 1]; ++property)
            action.values[property] = "default " + std::to_string(property);
        return action;
    }

    void rebuild()
    {
        for (ACTION& action : list)
            action.drawn = text_of(action);
        selection.clear();
        clipboard.clear();
        current = 0;
        rows.clear();
        pending = false;
        ++rebuilds;
    }

    // The y of every shape, from Start to End.
    std::vector<double> tops() const
    {
        std::vector<double> all{15};
        all.push_back(all.back() + height_of_lines(1) + ARROW);
        for (const ACTION& action : list)
            all.push_back(all.back() + height_of(action) + ARROW);
        return all;
    }

    static double height_of(const ACTION& action)
    {
        const auto marker = action.values.find(39);
        if (marker != action.values.end() && marker->second == "end")
            return height_of_diamond(action.drawn);
        return height_of_lines(static_cast<int>(std::count(action.drawn.begin(), action.drawn.end(), '\n')) + 1);
    }

    // How far the outline of a diamond reaches depends on its angles.
    static double height_of_diamond(const std::string& drawn)
    {
        const QRectF text = QGraphicsTextItem(QString::fromStdString(drawn)).boundingRect();
        const double width = text.width() + 30;
        const double height = text.height() + 30;
        const QGraphicsPolygonItem diamond(
            QPolygonF({{width / 2, height}, {0, height / 2}, {width / 2, 0}, {width, height / 2}}));
        return diamond.boundingRect().height();
    }

    // Of a shape around a text of so many lines, outline included.
    static double height_of_lines(int lines)
    {
        constexpr double OUTLINE = 1;
        static std::map<int, double> known;
        if (known.count(lines) == 0)
            known[lines] = QGraphicsTextItem(qs("\nx").repeated(lines).mid(1)).boundingRect().height() + OUTLINE;
        return known[lines];
    }

    // Where something aimed at `y` goes, or -1.
    int index_at(double y) const
    {
        const std::vector<double> starts = tops();
        for (std::size_t shape = 0; shape < starts.size(); ++shape) {
            const bool is_end = shape == starts.size() - 1;
            const bool is_block = shape > 0 && !is_end;
            const double bottom = starts[shape] + (is_block ? height_of(list[shape - 1]) : height_of_lines(1));
            if (bottom <= y && y <= bottom + ARROW)
                return std::min(static_cast<int>(shape), static_cast<int>(list.size()));
        }
        return -1;
    }

    std::vector<ACTION> list;
    std::vector<int> selection;
    std::vector<int> clipboard;
    int current = 0;
    // The Value column.
    std::vector<std::string> rows;
    bool armed = false;
    bool pending = false;
    double menu_y = 0;
    int rebuilds = 0;
    int last_id = 0;
};

// A page and its model, doing the same steps.
class SESSION
{
public:
    SESSION()
        : m_actions_before(live_actions()), m_page(nullptr, 1), m_scene(scene_of(m_page)),
          m_rebuilds(&m_scene, SIGNAL(emit_clear_table()))
    {
        m_page.activate();
        ++m_model.rebuilds;
        load();
    }

    void run(const std::vector<STEP>& steps)
    {
        compare();
        for (const STEP& step : steps) {
            do_step(step);
            compare();
        }
    }

private:
    void load()
    {
        const ACTION_LIST actions({make_named_action(0, "one"), make_loop_action("page", "start"),
                                   make_named_action(2, "two"), make_loop_action("page", "end")});
        m_page.load_flow(&actions.get(), true);
        for (const GFPDB_ACTION* const action : actions.get()) {
            MODEL::ACTION one = m_model.make(action->m_action_type);
            one.values = dynamic_cast<const ACTION_DOUBLE&>(*action).values;
            m_model.list.push_back(one);
        }
        m_model.rebuild();
    }

    void do_step(const STEP& step)
    {
        switch (step.kind) {
        case CLICK_ARROW:
            return click_arrow(step.place);
        case CLICK_SHAPE:
            return click_shape(step.place, Qt::NoModifier);
        case CTRL_CLICK_SHAPE:
            return click_shape(step.place, Qt::ControlModifier);
        case INSERT:
            return insert(step.what % 5);
        case DROP:
            return drop(step.place, step.what % 6);
        case DROP_FOREIGN:
            return send_drop(arrow_point(step.place), qs("foreign %1").arg(step.what));
        case DELETE:
            return delete_selected();
        case COPY:
            return copy();
        case PASTE_KEY:
            return paste(true);
        case PASTE_COMMAND:
            return paste(false);
        case REFRESH:
            send_key(Qt::Key_F5, Qt::NoModifier);
            return m_model.rebuild();
        case EDIT:
            return edit(step.place, "value " + std::to_string(step.what));
        default:
            return focus();
        }
    }

    QPointF arrow_point(int place) const { return on_arrow(m_scene, place % arrows_of(m_scene).size()); }

    void send_click(const QPointF& pos, Qt::KeyboardModifiers modifiers)
    {
        for (const QEvent::Type type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseRelease}) {
            QGraphicsSceneMouseEvent event(type);
            event.setButton(Qt::LeftButton);
            event.setButtons(type == QEvent::GraphicsSceneMousePress ? Qt::LeftButton : Qt::NoButton);
            event.setModifiers(modifiers);
            event.setScenePos(pos);
            event.setButtonDownScenePos(Qt::LeftButton, pos);
            QApplication::sendEvent(&m_scene, &event);
        }
    }

    void send_key(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&m_scene, &event);
    }

    void send_drop(const QPointF& pos, const QString& text)
    {
        QMimeData data;
        data.setText(text);
        QGraphicsSceneDragDropEvent event(QEvent::GraphicsSceneDrop);
        event.setMimeData(&data);
        event.setScenePos(pos);
        event.setProposedAction(Qt::MoveAction);
        QApplication::sendEvent(&m_scene, &event);
    }

    // The scene's own order of the selected blocks counts for a copy, and the last of them is the one that is told.
    std::vector<int> selected_in_order() const
    {
        std::vector<int> ids;
        const QList<QGraphicsItem*> selected = m_scene.selectedItems();
        for (const QGraphicsItem* const item : selected) {
            const int index = m_scene.get_actions().indexOf(::text_of(*item)->action());
            ids.push_back(m_model.list.at(static_cast<std::size_t>(index)).id);
        }
        return ids;
    }

    void select(const std::vector<int>& selection)
    {
        const bool changed = selection != m_model.selection;
        m_model.selection = selection;
        if (!changed || selection.empty())
            return;
        m_model.current = selected_in_order().back();
        m_model.rows.clear();
        for (const auto& value : m_model.find(m_model.current)->values)
            m_model.rows.push_back(value.second);
    }

    void click_arrow(int place)
    {
        const QPointF pos = arrow_point(place);
        send_click(pos, Qt::NoModifier);
        m_model.menu_y = pos.y();
        m_model.armed = !m_model.clipboard.empty();
        select({});
    }

    void click_shape(int place, Qt::KeyboardModifiers modifiers)
    {
        const int shape = place % static_cast<int>(m_model.list.size() + 2);
        send_click(on_shape(m_scene, shape), modifiers);
        m_model.armed = false;
        const bool is_action = shape > 0 && shape <= static_cast<int>(m_model.list.size());
        const MODEL::ACTION* const hit = is_action ? &m_model.list[static_cast<std::size_t>(shape - 1)] : nullptr;
        const bool can_be_selected = hit != nullptr && hit->type < 5;
        std::vector<int> selection = modifiers != Qt::NoModifier ? m_model.selection : std::vector<int>();
        if (can_be_selected) {
            const auto there = std::find(selection.begin(), selection.end(), hit->id);
            if (there == selection.end())
                selection.push_back(hit->id);
            else
                selection.erase(there);
        }
        std::sort(selection.begin(), selection.end());
        select(selection);
    }

    void insert_into_model(int index, MODEL::ACTION action)
    {
        m_model.list.insert(m_model.list.begin() + index, std::move(action));
    }

    void insert(int type)
    {
        static constexpr const char* SLOTS[] = {"on_insert_wr_action", "on_insert_rr_action", "on_insert_wd_action",
                                                "on_insert_rd_action", "on_insert_e_action"};
        const int index = m_model.index_at(m_model.menu_y);
        if (!QMetaObject::invokeMethod(&m_scene, SLOTS[type]))
            qFatal("the scene has no slot %s", SLOTS[type]);
        if (index < 0)
            return;
        insert_into_model(index, m_model.make(type));
        m_model.rebuild();
    }

    void drop(int place, int type)
    {
        static constexpr const char* NAMES[] = {"Write Register", "Read Register", "Write Data",
                                                "Read Data",      "Erase",         "Custom"};
        const QPointF pos = arrow_point(place);
        const int index = m_model.index_at(pos.y());
        send_drop(pos, QString::fromLatin1(NAMES[type]));
        insert_into_model(index, m_model.make(type));
        m_model.rebuild();
    }

    void delete_selected()
    {
        send_key(Qt::Key_Delete, Qt::NoModifier);
        if (m_model.selection.empty())
            return;
        const std::vector<int> gone = m_model.selection;
        m_model.list.erase(std::remove_if(m_model.list.begin(), m_model.list.end(),
                                          [&gone](const MODEL::ACTION& action) {
                                              return std::find(gone.begin(), gone.end(), action.id) != gone.end();
                                          }),
                           m_model.list.end());
        m_model.rebuild();
    }

    void copy()
    {
        if (!m_model.selection.empty())
            m_model.clipboard = selected_in_order();
        send_key(Qt::Key_C, Qt::ControlModifier);
    }

    void paste(bool by_key)
    {
        int index = m_model.index_at(m_model.menu_y);
        if (by_key)
            send_key(Qt::Key_V, Qt::ControlModifier);
        else
            m_scene.on_paste_action();
        if (index < 0 || (by_key && !m_model.armed))
            return;
        const std::vector<int> copied = m_model.clipboard;
        for (const int id : copied) {
            MODEL::ACTION action = *m_model.find(id);
            action.id = ++m_model.last_id;
            insert_into_model(index++, action);
        }
        m_model.rebuild();
    }

    // Through the delegate, as the table does it.
    void edit(int place, const std::string& value)
    {
        if (m_model.rows.empty())
            return;
        const auto row = static_cast<std::size_t>(place) % m_model.rows.size();
        QAbstractItemModel& table = *property_table_of(m_page)->model();
        QLineEdit editor(QString::fromStdString(value));
        property_table_of(m_page)->itemDelegateForColumn(1)->setModelData(&editor, &table,
                                                                          table.index(static_cast<int>(row), 1));
        MODEL::ACTION& action = *m_model.find(m_model.current);
        std::next(action.values.begin(), static_cast<std::ptrdiff_t>(row))->second = value;
        m_model.rows[row] = value;
        m_model.pending = true;
    }

    void focus()
    {
        QFocusEvent event(QEvent::FocusIn);
        QApplication::sendEvent(&m_scene, &event);
        if (m_model.pending)
            m_model.rebuild();
    }

    void compare() const
    {
        const QList<GFPDB_ACTION*> flow = m_page.get_flow();
        RC_ASSERT(flow.size() == static_cast<int>(m_model.list.size()));
        const QList<QAbstractGraphicsShapeItem*> shapes = shapes_of(m_scene);
        RC_ASSERT(shapes.size() == flow.size() + 2);
        const std::vector<double> tops = m_model.tops();
        std::vector<int> selected;
        for (int index = 0; index < flow.size(); ++index) {
            const MODEL::ACTION& expected = m_model.list[static_cast<std::size_t>(index)];
            const auto& actual = dynamic_cast<const ACTION_DOUBLE&>(*flow.at(index));
            const QAbstractGraphicsShapeItem& shape = *shapes.at(index + 1);
            RC_ASSERT(actual.m_action_type == expected.type);
            RC_ASSERT(actual.values == expected.values);
            RC_ASSERT(::text_of(shape)->action() == flow.at(index));
            RC_ASSERT(::text_of(shape)->toPlainText().toStdString() == expected.drawn);
            RC_ASSERT(qAbs(shape.y() - tops[static_cast<std::size_t>(index + 1)]) < 0.001);
            RC_ASSERT((shape.pen() == QPen(Qt::red, 2)) == shape.isSelected());
            if (shape.isSelected())
                selected.push_back(expected.id);
        }
        std::sort(selected.begin(), selected.end());
        RC_ASSERT(selected == m_model.selection);
        compare_table();
        RC_ASSERT(m_rebuilds.size() == m_model.rebuilds);
        // The checker of the table is one more.
        RC_ASSERT(live_actions() == m_actions_before + flow.size() + 1);
    }

    void compare_table() const
    {
        std::vector<std::string> rows;
        for (const QString& value : column_of(m_page, 1))
            rows.push_back(value.toStdString());
        RC_ASSERT(rows == m_model.rows);
    }

    int m_actions_before;
    PAGE m_page;
    GFPQ_FLOW_SCENE& m_scene;
    QSignalSpy m_rebuilds;
    MODEL m_model;
};

} // namespace

class TEST_FLOW_MODEL : public GUI_TEST
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!qEnvironmentVariableIsSet("RC_PARAMS"))
            qputenv("RC_PARAMS", DEFAULT_PARAMS);
    }

    void random_sessions_leave_what_a_plain_list_would_hold()
    {
        const bool held = rc::check("the page agrees with a plain list after every step", [this] {
            const std::vector<STEP> steps = *sessions();
            log().clear();
            SESSION().run(steps);
        });

        QVERIFY(held);
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_MODEL)

#include "test_flow_model.moc"
