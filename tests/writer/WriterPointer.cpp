#include "writer/Writer.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// What the writer does with the pointer, and what others do to the library meanwhile.

namespace
{

constexpr auto clickTime = 200ms;
constexpr auto addTime = 400ms; // after which a block that was just added has the caret
constexpr int stripHeight = 60; // of the page, where buttons lie over it

template <typename List>
qsizetype choose(const List &list, double fraction)
{
    return std::min(qsizetype(fraction * double(list.size())), qsizetype(list.size()) - 1);
}

QRectF inScene(const QQuickItem &item)
{
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

QRectF viewOf(const ShownPage &page)
{
    return page.list() ? inScene(*page.list()).adjusted(0, stripHeight, 0, -8) : QRectF();
}

QByteArray yellowPicture()
{
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::yellow);
    QBuffer bytes;
    picture.save(&bytes, "PNG");
    return bytes.data();
}

} // namespace

QList<QQuickItem *> Writer::inSight(const QList<QQuickItem *> &items) const
{
    const QRectF view = viewOf(shown());
    QList<QQuickItem *> found;
    std::ranges::copy_if(items, std::back_inserter(found), [&](const QQuickItem *item) {
        return item->isEnabled() && view.contains(inScene(*item).center());
    });
    return found;
}

/// The place in a field that the three numbers from `first` on stand for. The right end of a field is left
/// out, where the buttons of its block lie.
std::optional<QPointF> Writer::placeInField(const Action &action, int first) const
{
    const ShownPage page = shown();
    QList<QQuickItem *> fields = page.fields();
    const auto seen = [view = viewOf(page)](const QQuickItem *item) { return inScene(*item) & view; };
    fields.removeIf([&](const QQuickItem *item) { return seen(item).height() < 12; });
    if (fields.isEmpty())
        return std::nullopt;
    const QQuickItem *chosen = fields.at(choose(fields, action.number(first)));
    const QRectF place = seen(chosen).adjusted(1, 5, 0, -5);
    return QPointF(place.left() + 0.8 * place.width() * action.number(first + 1),
                   place.top() + place.height() * action.number(first + 2));
}

/// The fields that stand at that place; while blocks glide to new places there can be two.
QList<Spot> Writer::spotsAt(QPointF place) const
{
    const ShownPage page = shown();
    QList<Spot> spots;
    for (const QQuickItem *field : page.fields()) {
        if (inScene(*field).contains(place))
            spots.append(page.placeOf(*field));
    }
    return spots;
}

Writer::Outcome Writer::clickField(const Action &action)
{
    UserInput hands(m_program->window());
    const auto place = placeInField(action, 0);
    if (!place)
        return {};
    const QList<Spot> clicked = spotsAt(*place);
    if (action.kind == Action::Kind::doubleClick)
        hands.doubleClick(*place);
    else
        hands.click(*place, action.kind == Action::Kind::shiftClick ? Qt::ShiftModifier : Qt::NoModifier);
    m_program->pass(clickTime);
    const QQuickItem *focused = shown().focusedField();
    const auto isThere = [&](const Spot &spot) {
        return focused && shown().placeOf(*focused).isInFieldOf(spot);
    };
    if (std::ranges::none_of(clicked, isThere) && action.kind != Action::Kind::shiftClick)
        m_fault = u"caret: it is not in the text that was clicked"_s;
    return {};
}

Writer::Outcome Writer::point(const Action &action)
{
    UserInput hands(m_program->window());
    switch (action.kind) {
    case Action::Kind::click:
    case Action::Kind::doubleClick:
    case Action::Kind::shiftClick:
        return clickField(action);
    case Action::Kind::dragSelection: {
        const auto from = placeInField(action, 0);
        const auto to = placeInField(action, 3);
        if (from && to)
            hands.drag(*from, *to);
        m_program->pass(clickTime);
        return {};
    }
    case Action::Kind::wheel:
        hands.turnWheel(viewOf(shown()).center(), int(action.number(0)));
        m_program->pass(clickTime);
        return {};
    default: { // clickBelow
        const QRectF view = viewOf(shown());
        const QList<QQuickItem *> rows = shown().controls("BlockRow");
        const PlainPage page = m_pages.value(m_open);
        if (rows.isEmpty() || inScene(*rows.last()).bottom() > view.bottom() - 10 ||
            shown().blockOf(rows.last()) != page.size() - 1)
            return {};
        PageModel model(page, std::nullopt);
        if (!isTextLike(page.last().kind))
            model.addBlock(BlockType::textSmall);
        hands.click(QPointF(view.center().x(), view.bottom() - 4));
        m_program->pass(addTime);
        return outcomeOf(model);
    }
    }
}

Writer::Outcome Writer::dragBlock(double from, double to)
{
    QList<QQuickItem *> rows = inSight(shown().controls("BlockRow"));
    constexpr int lowest = 4; // to be sure to hit
    rows.removeIf([](const QQuickItem *row) { return row->height() < lowest; });
    if (rows.size() < 2)
        return {};
    QQuickItem *taken = rows.at(choose(rows, from));
    const int block = shown().blockOf(taken);
    const double margin = viewOf(shown()).left() + 12;
    UserInput(m_program->window())
        .drag(QPointF(margin, inScene(*taken).center().y()),
              QPointF(margin, inScene(*rows.at(choose(rows, to))).center().y()));
    m_program->pass(addTime);
    return {.accepts = [model = this->model(), block](const PlainPage &found) {
        for (int row = 0; row < model.page().size(); ++row) {
            PageModel moved = model;
            moved.moveBlock(block, row);
            if (moved.page() == found)
                return true;
        }
        return false;
    }};
}

Writer::Outcome Writer::pressControl(const QString &type, double which)
{
    const ShownPage page = shown();
    const bool isChip = type == u"IconChipButton";
    const QList<QQuickItem *> controls = isChip ? page.chips() : inSight(page.controls(type.toLatin1()));
    if (controls.isEmpty())
        return {};
    const qsizetype index = choose(controls, which);
    QQuickItem *control = controls.at(index);
    const int block = page.blockOf(control);
    const int entry = page.entryOf(control);
    const QByteArray picture = yellowPicture();
    PageModel model = this->model();
    if (isChip)
        model.addBlock(static_cast<BlockType>(index));
    else if (type == u"RemoveTodoButton")
        model.removeEntry(block, entry);
    else if (type == u"TodoToggle")
        model.toggleEntry(block, entry);
    else if (type == u"BubblyDeleteButton")
        model.deleteBlock(block);
    else if (type == u"BannerToggleButton")
        model.toggleBanner(block);
    else if (type == u"FirstTodoButton")
        model.addEntry(block);
    else if (type == u"AddImageButton")
        model.setPicture(block, pictureMark(picture));
    UserInput(m_program->window()).click(inScene(*control).center());
    m_program->pass(addTime);
    m_system.pictureFiles.files["/picture"] = picture;
    m_system.fileChooser.answer(QList<std::filesystem::path>{"/picture"});
    m_program->pass(clickTime);
    return isChip ? outcomeOf(model) : elsewhere(model);
}

Writer::Outcome Writer::useTasksPanel(const Action &action)
{
    struct Item {
        QUuid page;
        int block;
        int entry;
    };
    QList<Item> tasks;
    for (const PelkoDocument &page : m_program->store().documents()) {
        for (int block = 0; block < page.blocks.size(); ++block) {
            const auto todos =
                page.blocks.at(block).type == BlockType::sticky ? page.blocks.at(block).todos : std::nullopt;
            for (int entry = 0; todos && entry < todos->size(); ++entry)
                tasks.append({page.id, block, entry});
        }
    }
    if (action.kind == Action::Kind::quickAdd) {
        PageModel model = this->model();
        model.quickAdd(action.text);
        m_program->tasksPanel().addQuickTask(action.text);
        m_program->pass(clickTime);
        return elsewhere(model);
    }
    if (tasks.isEmpty())
        return {};
    const Item task = tasks.at(choose(tasks, action.number(0)));
    PageModel model(m_pages.value(task.page), task.page == m_open ? this->model().marked() : std::nullopt);
    const Block block = m_program->store().document(task.page)->blocks.at(task.block);
    const auto name = [](const QUuid &id) { return id.toString(QUuid::WithoutBraces); };
    const QString todo = name(block.todos->at(task.entry).id);
    if (action.kind == Action::Kind::tickTask) {
        model.toggleEntry(task.block, task.entry);
        m_program->tasksPanel().toggleTodo(name(task.page), name(block.id), todo);
    } else {
        model.removeEntry(task.block, task.entry);
        m_program->tasksPanel().deleteTodo(name(task.page), name(block.id), todo);
    }
    m_program->pass(clickTime);
    if (task.page == m_open)
        return elsewhere(model);
    m_pages.insert(task.page, model.page());
    return {};
}
