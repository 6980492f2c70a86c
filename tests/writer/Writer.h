#pragma once

#include "writer/Action.h"
#include "writer/PageHistory.h"
#include "writer/RunningProgram.h"
#include "writer/ShownPage.h"
#include "writer/UserInput.h"

#include <functional>
#include <memory>

/// Writes in the real program and in the model at once, and compares the two after each action. What it
/// finds wrong is told in words that begin with the kind of the fault and a colon.
class Writer
{
public:
    using Fault = std::optional<QString>;

    /// Faults of the kinds of `ignored`, such as "file", are not told of; what became of the page is taken as
    /// it is.
    explicit Writer(const QString &startPages, const QStringList &ignored = {});

    /// Nothing while all is well; after a fault there is no going on.
    Fault perform(const Action &action);

    /// Collects what is told on the console from now on.
    static void watchConsole();

private:
    using Pages = QHash<QUuid, PlainPage>;

    /// The time from one key to the next.
    static constexpr std::chrono::milliseconds keyTime{125};

    /// What an action may have made of the open page.
    struct Outcome {
        QList<PageModel::Stage> stages = {};
        std::optional<Marked> marked = std::nullopt;
        /// Where the selection begins that a key has moved the end of.
        std::optional<Spot> anchor = std::nullopt;
        /// Where more than one result is right: tells whether the page found is one of them.
        std::function<bool(const PlainPage &found)> accepts = {};
        /// The accepted page that undo may take back together with the keys around.
        std::optional<PlainPage> acceptedAsTyping = {};
        /// After a key the caret has to be in sight.
        bool isKey = false;
    };

    void start();
    void startAgain(bool isOrderly);
    Outcome act(const Action &action);
    Outcome pressKey(const QString &keys);
    Outcome changeByKey(const QString &keys, PageModel model) const;
    Outcome changeByTab(const QString &keys, PageModel model) const;
    static Outcome moveAnyBlock(const PageModel &model);
    Outcome removeWord(PageModel model, bool forward) const;
    Outcome insertPicture(PageModel model) const;
    Outcome pressOutsideOfText(const QString &keys, const PageModel &model);
    Outcome pressUndo(bool back);
    bool travel(bool back);
    Outcome undoAll();
    Outcome typeText(const QString &text);
    Outcome pasteText(const QString &text);
    Outcome pastePicture();
    Outcome compose(const QString &text, bool saysWhereItStands);
    Outcome startComposing(const QString &text);
    void leaveComposing(const Action &action);
    Fault followComposing(const Action &action, const Outcome &outcome);
    void takeComposed(const PageModel &model);
    Outcome point(const Action &action);
    Outcome clickField(const Action &action);
    Outcome dragBlock(double from, double to);
    Outcome pressControl(const QString &type, double which);
    Outcome useTasksPanel(const Action &action);
    void find(const QString &text);
    void failDisk(const Action &action);
    void mendDisk();
    void leaveAlert();
    void followOpenPage();
    void takePagesAsTheyAre();
    bool isIgnored(const QString &fault) const;

    Fault checkPages(const Outcome &outcome);
    Fault checkView(const Outcome &outcome);
    Fault checkFile();
    std::optional<QString> wrongInView(const Outcome &outcome);

    const PelkoDocument &document() const;
    ShownPage shown() const;
    PageModel model() const;
    static Outcome outcomeOf(const PageModel &model);
    static Outcome elsewhere(const PageModel &model);
    std::optional<QPointF> placeInField(const Action &action, int first) const;
    QList<Spot> spotsAt(QPointF place) const;
    QList<QQuickItem *> inSight(const QList<QQuickItem *> &items) const;

    QStringList m_ignored;
    ManualSystem m_system;
    std::unique_ptr<RunningProgram> m_program;
    Pages m_pages;
    QUuid m_open;
    std::optional<PageHistory> m_history;
    Pages m_saved;
    int m_writes = -1;
    /// What an input method composes in the field with the caret; empty for none.
    QString m_preedit;
    /// The page once that is committed.
    std::optional<PageModel> m_composed;
    /// What led to the page before that is committed.
    std::optional<PageHistory> m_uncomposed;
    /// The program has to have committed it before it did anything else.
    bool m_isInterrupted = false;
    ScheduledCall m_mending;
    /// When what is not in the file yet has to be there.
    std::optional<std::chrono::milliseconds> m_saveLimit;
    /// The disk failed while there was something to save.
    bool m_isDiskMended = false;
    Fault m_fault;
};
