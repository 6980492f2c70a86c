#include "writer/Writer.h"

using namespace Qt::StringLiterals;

// What the writer does with an input method, and what other actions do to what it composes.

namespace
{

using Kind = Action::Kind;

/// These leave the keyboard, and what is composed, where it is.
bool leavesKeyboard(const Action &action)
{
    static const QStringList views{u"Ctrl+T"_s, u"Ctrl+Shift+F"_s};
    switch (action.kind) {
    case Kind::wait:
    case Kind::wheel:
    case Kind::spark:
    case Kind::failDisk:
    case Kind::mendDisk:
    case Kind::quickAdd:
    case Kind::tickTask:
    case Kind::deleteTask:
    case Kind::resize:
    case Kind::dragBlock:
        return true;
    case Kind::key:
        return views.contains(action.text);
    default:
        return false;
    }
}

/// These go to the input method first, which commits.
bool isForInputMethod(const Action &action)
{
    static const QStringList shortcuts{u"Ctrl+Z"_s,   u"Ctrl+Shift+Z"_s, u"Ctrl+Y"_s,      u"Alt+Up"_s,
                                       u"Alt+Down"_s, u"Ctrl+T"_s,       u"Ctrl+Shift+F"_s};
    switch (action.kind) {
    case Kind::key:
        return !shortcuts.contains(action.text);
    case Kind::type:
    case Kind::paste:
    case Kind::pastePicture:
    case Kind::compose:
    case Kind::cancelComposing:
    case Kind::startComposing:
        return true;
    default:
        return false;
    }
}

QList<PageModel::Stage> asTyping(QList<PageModel::Stage> stages)
{
    for (PageModel::Stage &stage : stages)
        stage.isTyping = true;
    return stages;
}

} // namespace

Writer::Outcome Writer::compose(const QString &text, bool saysWhereItStands)
{
    PageModel model = this->model();
    if (!shown().focusedField())
        return {};
    UserInput hands(m_program->window());
    hands.compose(text.isEmpty() ? u"ka"_s : text);
    m_program->pass(keyTime);
    hands.commit(text, saysWhereItStands);
    m_program->pass(keyTime);
    if (text.isEmpty() || model.isCrossing())
        model.cut(); // what is composed takes the place of what was selected
    if (!text.isEmpty())
        model.paste(text);
    Outcome outcome = outcomeOf(model);
    outcome.stages = asTyping(outcome.stages);
    return outcome;
}

Writer::Outcome Writer::startComposing(const QString &text)
{
    const auto marked = shown().marked();
    if (!shown().focusedField() || marked->anchor != marked->head)
        return {};
    UserInput(m_program->window()).compose(text);
    m_program->pass(keyTime);
    if (shown().preedit() != text)
        m_fault = u"composing: the field shows %1"_s.arg(quoted(shown().preedit()));
    m_preedit = text;
    return {.marked = marked, .isKey = true};
}

/// What is composed is on the page before anything else happens to it.
void Writer::leaveComposing(const Action &action)
{
    if (m_preedit.isEmpty())
        return;
    m_composed.emplace(model());
    m_composed->paste(m_preedit);
    if (leavesKeyboard(action))
        return;
    if (isForInputMethod(action)) {
        UserInput(m_program->window()).commit(m_preedit, true);
        m_program->pass(keyTime);
        return takeComposed(*m_composed);
    }
    m_isInterrupted = true;
    m_uncomposed = m_history;
    m_history->add(asTyping(m_composed->stages()));
    m_pages.insert(m_open, m_composed->page());
}

void Writer::takeComposed(const PageModel &model)
{
    m_history->add(asTyping(model.stages()));
    m_pages.insert(m_open, model.page());
    m_preedit.clear();
}

Writer::Fault Writer::followComposing(const Action &action, const Outcome &outcome)
{
    const bool goesOn = !m_preedit.isEmpty() && shown().preedit() == m_preedit;
    if (std::exchange(m_isInterrupted, false)) {
        if (goesOn && outcome.stages.isEmpty() && !outcome.accepts) { // there was nothing to act on
            m_history = m_uncomposed;
            m_pages.insert(m_open, m_history->now());
            return std::nullopt;
        }
        const QString preedit = std::exchange(m_preedit, QString());
        return goesOn ? Fault(u"composing: %1 is still not committed"_s.arg(quoted(preedit))) : std::nullopt;
    }
    if (m_preedit.isEmpty() || goesOn || action.kind == Kind::startComposing)
        return std::nullopt;
    if (outcome.stages.isEmpty())
        takeComposed(*m_composed); // an alert has taken the keyboard
    else if (action.kind != Kind::deleteTask)
        return u"composing: %1 is nowhere"_s.arg(quoted(m_preedit));
    m_preedit.clear();
    return std::nullopt;
}
