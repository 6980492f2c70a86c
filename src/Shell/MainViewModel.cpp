#include "Shell/MainViewModel.h"

#include "Navigation/PageTexts.h"
#include "Shell/WindowTitle.h"
#include "Store/ChangeScope.h"
#include "Theme/PelkoVoice.h"

using namespace Qt::StringLiterals;

MainViewModel::MainViewModel(AppState &appState, const Clock &clock, const EditorServices &services,
                             MenuLocation menuLocation, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_services(services)
    , m_navigation(appState, clock)
    , m_commands(appState, m_navigation, menuLocation)
    , m_quitGuard(appState)
{
    greet();
    followStore();
    followOpenDocument();
    followError();
}

void MainViewModel::followStore()
{
    connect(&m_appState, &AppState::openDocumentIDChanged, this, &MainViewModel::followOpenDocument);
    connect(&m_appState, &AppState::documentsChanged, this, &MainViewModel::followOpenDocument);
    connect(&m_appState, &AppState::lastErrorChanged, this, &MainViewModel::followError);
    connect(&m_appState, &AppState::lastSaveErrorChanged, this, &MainViewModel::followLastSave);
    connect(&m_commands, &ShellCommands::saveRequested, this, &MainViewModel::save);
    connect(&m_appState, &AppState::currentSpaceChanged, this, &MainViewModel::followOpenDocument);
    connect(&m_appState, &AppState::focusModeChanged, this, &MainViewModel::followFocusMode);
}

void MainViewModel::greet()
{
    ChangeScope(*this).assign(m_topMessage, PelkoVoice::pick(PelkoVoice::greetingPool(), u"greeting"_s),
                              &MainViewModel::topMessageChanged);
}

EditorViewModel *MainViewModel::openEditor(const QString &documentID)
{
    auto *editor = new EditorViewModel(m_appState, m_services, QUuid(documentID), this);
    connect(editor, &QObject::destroyed, this, &MainViewModel::editorChanged);
    ChangeScope(*this).assign(m_editor, editor, &MainViewModel::editorChanged);
    return editor;
}

void MainViewModel::createDocument()
{
    m_navigation.createDocument();
}

void MainViewModel::toggleNav()
{
    m_appState.toggleNav();
}

bool MainViewModel::leaveFocusMode()
{
    const bool ends = m_isFocused;
    m_appState.setFocusMode(false);
    return ends;
}

void MainViewModel::dismissNav()
{
    m_appState.setShowNav(false);
}

void MainViewModel::dismissDocLimitNudge()
{
    m_appState.setShowDocLimitNudge(false);
}

void MainViewModel::dismissAbout()
{
    m_appState.setShowAbout(false);
}

void MainViewModel::dismissError()
{
    m_knownSaveError = m_appState.lastSaveError();
    m_appState.clearLastError();
}

void MainViewModel::requestDelete(const QString &documentID)
{
    const PelkoDocument *document = m_appState.document(QUuid(documentID));
    if (!document)
        return;
    ChangeScope changes(*this);
    changes.assign(m_docToDelete, *document, &MainViewModel::docToDeleteChanged);
    changes.assign(m_deleteConfirmText, tr("Delete “%1” for good?").arg(pageName(*document)),
                   &MainViewModel::deleteConfirmTextChanged);
}

void MainViewModel::confirmDelete()
{
    if (!m_docToDelete)
        return;
    // Close the alert first, so that it restores the focus before the next view takes it.
    const PelkoDocument document = *m_docToDelete;
    cancelDelete();
    m_appState.permanentlyDeleteDocument(document);
}

void MainViewModel::cancelDelete()
{
    ChangeScope(*this).assign(m_docToDelete, std::nullopt, &MainViewModel::docToDeleteChanged);
}

void MainViewModel::followOpenDocument()
{
    const std::optional<PelkoDocument> open = m_appState.openDocument();
    const bool emptyStateComesUp = !open && (m_emptyMessage.isEmpty() || !m_openDocumentID.isEmpty());
    ChangeScope changes(*this);
    changes.assign(m_openDocumentID, open ? open->id.toString(QUuid::WithoutBraces) : QString(),
                   &MainViewModel::openDocumentIDChanged);
    changes.assign(m_windowTitle, ::windowTitle(open ? open->title() : QString()),
                   &MainViewModel::windowTitleChanged);
    if (emptyStateComesUp)
        changes.assign(m_emptyMessage, PelkoVoice::pick(PelkoVoice::emptyNotesPool(), u"emptyNotes"_s),
                       &MainViewModel::emptyMessageChanged);
    followFocusMode();
}

void MainViewModel::followFocusMode()
{
    ChangeScope(*this).assign(m_isFocused, m_appState.focusMode() && !m_openDocumentID.isEmpty(),
                              &MainViewModel::isFocusedChanged);
}

void MainViewModel::followError()
{
    const std::optional<QString> error = m_appState.lastError();
    if (error && error == m_knownSaveError) {
        m_appState.clearLastError(); // already reported; the title still shows it
        return;
    }
    ChangeScope changes(*this);
    if (error) {
        changes.assign(m_errorTitle, PelkoVoice::pick(PelkoVoice::errorPool(), u"error"_s),
                       &MainViewModel::errorTitleChanged);
        changes.assign(m_errorText, *error, &MainViewModel::errorTextChanged);
    }
    changes.assign(m_showError, error.has_value(), &MainViewModel::showErrorChanged);
}

QString MainViewModel::saveError() const
{
    return m_appState.lastSaveError().value_or(QString());
}

void MainViewModel::followLastSave()
{
    if (!m_appState.lastSaveError())
        m_knownSaveError.reset();
    Q_EMIT saveErrorChanged();
}

/// Shows the alert again for an explicit save, even if the error is the same.
void MainViewModel::save()
{
    m_knownSaveError.reset();
    m_appState.saveChanges();
}
