#include "Shell/ExportViewModel.h"

#include "Export/Export.h"
#include "Export/PageMarkdown.h"
#include "Services/Pasteboard.h"
#include "Services/PictureFolders.h"
#include "Shell/CommandListModel.h"
#include "Store/AppState.h"
#include "Store/ChangeScope.h"
#include "Theme/PelkoVoice.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Existing = ExportFolder::Existing;

namespace
{
constexpr auto quietTime = 500ms; // most exports take less
constexpr auto libraryFolder = "Pelko";

QList<ExportedFile> filesOf(const QList<PelkoDocument> &documents, bool isLibrary)
{
    return isLibrary ? Export::library(documents) : Export::page(documents.constFirst());
}
} // namespace

ExportViewModel::ExportViewModel(const AppState &appState, const Services &services, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_services(services)
{
}

void ExportViewModel::bindTo(CommandListModel &commands)
{
    const auto isPageOpen = [this] { return m_appState.openDocumentID().has_value(); };
    const auto isAnyPage = [this] { return !m_appState.documents().isEmpty(); };
    commands.bind(u"exportDocument"_s, {.run = [this] { exportDocument(); }, .isEnabled = isPageOpen});
    commands.bind(u"exportLibrary"_s, {.run = [this] { exportLibrary(); }, .isEnabled = isAnyPage});
    commands.bind(u"copyAsMarkdown"_s, {.run = [this] { copyAsMarkdown(); }, .isEnabled = isPageOpen});
    connect(&m_appState, &AppState::documentsChanged, &commands, &CommandListModel::refresh);
}

void ExportViewModel::copyAsMarkdown()
{
    const std::optional<PelkoDocument> open = m_appState.openDocument();
    if (!open)
        return;
    const QString markdown = pageMarkdown(open->blocks);
    m_services.pasteboard.put({.text = markdown, .markdown = markdown});
}

void ExportViewModel::exportDocument()
{
    if (const std::optional<PelkoDocument> open = m_appState.openDocument())
        begin({.documents = {*open}});
}

void ExportViewModel::exportLibrary()
{
    begin({.documents = m_appState.documents(), .isLibrary = true});
}

void ExportViewModel::begin(Request request)
{
    if (m_isBusy)
        return;
    m_isBusy = true;
    m_request = std::move(request);
    m_choosing = m_services.chooser.choose(FileChooser::Target::folder,
                                           [this](const FileChooser::Choice &choice) { take(choice); });
}

void ExportViewModel::take(const FileChooser::Choice &choice)
{
    if (const auto *error = std::get_if<FileError>(&choice)) {
        tell(*error);
        return;
    }
    const auto &chosen = std::get<QList<std::filesystem::path>>(choice);
    if (chosen.isEmpty()) {
        m_isBusy = false;
        return;
    }
    m_request.folder = chosen.constFirst();
    // If the user chooses the "Pelko" folder of an earlier export, use it itself.
    if (m_request.isLibrary && m_request.folder.filename() != libraryFolder)
        m_request.folder /= libraryFolder;
    write(Existing::keep);
}

void ExportViewModel::write(Existing existing)
{
    const QString text = //: %1 is such as "12 pages and 1 picture", %2 the name of a folder.
        tr("%1 on the way to “%2”.").arg(Export::contents(m_request.documents), folderName());
    ChangeScope(*this).assign(m_progressText, text, &ExportViewModel::progressTextChanged);
    m_patience = m_services.scheduler.after(quietTime, [this] { setProgress(true); });
    m_writing = m_services.folder.write(
        m_request.folder,
        [documents = m_request.documents, isLibrary = m_request.isLibrary] {
            return filesOf(documents, isLibrary);
        },
        existing, [this](const ExportFolder::Outcome &outcome) { finish(outcome); });
}

void ExportViewModel::finish(const ExportFolder::Outcome &outcome)
{
    setProgress(false);
    if (const auto *taken = std::get_if<ExportFolder::Conflicts>(&outcome))
        ask(taken->paths);
    else if (const auto *error = std::get_if<FileError>(&outcome))
        tell(*error);
    else
        tellSuccess();
}

void ExportViewModel::ask(const QStringList &taken)
{
    const QString name = taken.constFirst().section(u'/', -1);
    const bool isOne = taken.size() == 1;
    ChangeScope changes(*this);
    changes.assign(m_questionTitle,
                   isOne ? tr("Replace “%1”?").arg(name)
                         : tr("Replace %n file(s)?", nullptr, static_cast<int>(taken.size())),
                   &ExportViewModel::questionChanged);
    changes.assign(m_questionText,
                   isOne ? tr("“%1” has a file of that name.").arg(folderName())
                         : tr("“%1” has files of these names, “%2” for one.").arg(folderName(), name),
                   &ExportViewModel::questionChanged);
    changes.assign(m_asksToReplace, true, &ExportViewModel::asksToReplaceChanged);
}

void ExportViewModel::replace()
{
    if (!m_asksToReplace)
        return;
    ChangeScope(*this).assign(m_asksToReplace, false, &ExportViewModel::asksToReplaceChanged);
    write(Existing::replace);
}

void ExportViewModel::keep()
{
    if (!m_asksToReplace)
        return;
    ChangeScope(*this).assign(m_asksToReplace, false, &ExportViewModel::asksToReplaceChanged);
    m_isBusy = false;
}

void ExportViewModel::stop()
{
    if (!m_showProgress)
        return;
    m_writing.cancel();
    setProgress(false);
    m_isBusy = false;
}

void ExportViewModel::tell(const FileError &error)
{
    setResult(true, PelkoVoice::pick(PelkoVoice::errorPool(), u"error"_s),
              tr("Export failed: %1. Nothing was left behind.").arg(error.description()));
}

void ExportViewModel::tellSuccess()
{
    setResult(false, tr("Exported."),
              tr("%1 in “%2”. Plain Markdown, yours to keep.")
                  .arg(Export::contents(m_request.documents), folderName()));
}

void ExportViewModel::setResult(bool failed, const QString &title, const QString &text)
{
    m_isBusy = false;
    ChangeScope changes(*this);
    changes.assign(m_hasFailed, failed, &ExportViewModel::resultChanged);
    changes.assign(m_resultTitle, title, &ExportViewModel::resultChanged);
    changes.assign(m_resultText, text, &ExportViewModel::resultChanged);
    changes.assign(m_showResult, true, &ExportViewModel::showResultChanged);
}

void ExportViewModel::dismissResult()
{
    ChangeScope(*this).assign(m_showResult, false, &ExportViewModel::showResultChanged);
}

void ExportViewModel::setProgress(bool shown)
{
    m_patience.cancel();
    ChangeScope(*this).assign(m_showProgress, shown, &ExportViewModel::showProgressChanged);
}

QString ExportViewModel::folderName() const
{
    return PictureFolders::nameOf(m_request.folder);
}
