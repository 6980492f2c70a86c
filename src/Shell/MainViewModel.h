#pragma once

#include "Editor/EditorViewModel.h"
#include "Models/PelkoDocument.h"
#include "Navigation/NavigationViewModel.h"
#include "Shell/QuitGuard.h"
#include "Shell/ShellCommands.h"
#include "Store/AppState.h"

#include <QObject>
#include <QPointer>

struct EditorServices;

/// The view model of the main window: the open page, the empty state, the navigation overlay and the alerts.
/// Random lines are picked here, so that a view that is created again shows the same one.
class MainViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(AppState *appState READ appState CONSTANT)
    Q_PROPERTY(QString openDocumentID READ openDocumentID NOTIFY openDocumentIDChanged)
    Q_PROPERTY(EditorViewModel *editor READ editor NOTIFY editorChanged)
    Q_PROPERTY(NavigationViewModel *navigation READ navigation CONSTANT)
    Q_PROPERTY(QString windowTitle READ windowTitle NOTIFY windowTitleChanged)
    Q_PROPERTY(QString topMessage READ topMessage NOTIFY topMessageChanged)
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY emptyMessageChanged)
    Q_PROPERTY(bool isFocused READ isFocused NOTIFY isFocusedChanged)
    Q_PROPERTY(bool showError READ showError NOTIFY showErrorChanged)
    Q_PROPERTY(QString errorTitle READ errorTitle NOTIFY errorTitleChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged)
    Q_PROPERTY(QString saveError READ saveError NOTIFY saveErrorChanged)
    Q_PROPERTY(QuitGuard *quitGuard READ quitGuard CONSTANT)
    Q_PROPERTY(bool showDeleteConfirmation READ showDeleteConfirmation NOTIFY docToDeleteChanged)
    Q_PROPERTY(QString deleteConfirmText READ deleteConfirmText NOTIFY deleteConfirmTextChanged)
    Q_PROPERTY(ShellCommands *commands READ commands CONSTANT)

public:
    MainViewModel(AppState &appState, const Clock &clock, const EditorServices &services,
                  MenuLocation menuLocation = MenuLocation::window, QObject *parent = nullptr);

    AppState *appState() { return &m_appState; }
    /// The document in the editor; empty if the empty state is shown.
    QString openDocumentID() const { return m_openDocumentID; }
    /// The editor that was opened last; null after it was deleted.
    EditorViewModel *editor() const { return m_editor; }
    NavigationViewModel *navigation() { return &m_navigation; }
    QString windowTitle() const { return m_windowTitle; }
    /// The greeting of the window; the same while the window is open.
    QString topMessage() const { return m_topMessage; }
    /// Picked each time the empty state is shown.
    QString emptyMessage() const { return m_emptyMessage; }
    /// Focus mode: only the page is visible. False without an open page.
    bool isFocused() const { return m_isFocused; }
    bool showError() const { return m_showError; }
    /// Title and text of the error alert. They keep their last values while it fades out.
    QString errorTitle() const { return m_errorTitle; }
    QString errorText() const { return m_errorText; }
    /// Why the last save failed; empty if it succeeded.
    QString saveError() const;
    QuitGuard *quitGuard() { return &m_quitGuard; }
    const std::optional<PelkoDocument> &docToDelete() const { return m_docToDelete; }
    bool showDeleteConfirmation() const { return m_docToDelete.has_value(); }
    /// Keeps its last value while the alert fades out.
    QString deleteConfirmText() const { return m_deleteConfirmText; }
    ShellCommands *commands() { return &m_commands; }

    /// Picks another greeting, for the next opening of the window.
    void greet();
    /// Creates an editor for the document. The caller must call its `release`.
    Q_INVOKABLE EditorViewModel *openEditor(const QString &documentID);
    /// Creates a document in the current space and closes the navigation, or raises the limit alert.
    Q_INVOKABLE void createDocument();
    Q_INVOKABLE void toggleNav();
    /// Ends focus mode. Returns whether it was active.
    Q_INVOKABLE bool leaveFocusMode();
    Q_INVOKABLE void dismissNav();
    Q_INVOKABLE void dismissDocLimitNudge();
    Q_INVOKABLE void dismissAbout();
    Q_INVOKABLE void dismissError();
    /// Shows the question before deleting. Does nothing for an unknown id.
    Q_INVOKABLE void requestDelete(const QString &documentID);
    Q_INVOKABLE void confirmDelete();
    Q_INVOKABLE void cancelDelete();

Q_SIGNALS:
    void openDocumentIDChanged();
    void editorChanged();
    void windowTitleChanged();
    void topMessageChanged();
    void emptyMessageChanged();
    void isFocusedChanged();
    void showErrorChanged();
    void errorTitleChanged();
    void errorTextChanged();
    void saveErrorChanged();
    void docToDeleteChanged();
    void deleteConfirmTextChanged();

private:
    void followStore();
    void followOpenDocument();
    void followFocusMode();
    void followError();
    void followLastSave();
    void save();

    AppState &m_appState;
    const EditorServices m_services;
    NavigationViewModel m_navigation;
    ShellCommands m_commands;
    QuitGuard m_quitGuard;
    QPointer<EditorViewModel> m_editor;
    QString m_openDocumentID;
    QString m_windowTitle;
    QString m_topMessage;
    QString m_emptyMessage;
    bool m_isFocused = false;
    bool m_showError = false;
    QString m_errorTitle;
    QString m_errorText;
    /// The last error of a save that was dismissed.
    std::optional<QString> m_knownSaveError;
    std::optional<PelkoDocument> m_docToDelete;
    QString m_deleteConfirmText;
};
