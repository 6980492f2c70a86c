#pragma once

#include "Models/PelkoDocument.h"
#include "Services/ExportFolder.h"
#include "Services/FileChooser.h"

#include <QObject>

class AppState;
class CommandListModel;
class Pasteboard;

/// The export of the window: asks for a folder, writes asynchronously, asks before it replaces files, and
/// reports the result. One export at a time.
class ExportViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool showProgress READ showProgress NOTIFY showProgressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressTextChanged)
    Q_PROPERTY(bool asksToReplace READ asksToReplace NOTIFY asksToReplaceChanged)
    Q_PROPERTY(QString questionTitle READ questionTitle NOTIFY questionChanged)
    Q_PROPERTY(QString questionText READ questionText NOTIFY questionChanged)
    Q_PROPERTY(bool showResult READ showResult NOTIFY showResultChanged)
    Q_PROPERTY(bool hasFailed READ hasFailed NOTIFY resultChanged)
    Q_PROPERTY(QString resultTitle READ resultTitle NOTIFY resultChanged)
    Q_PROPERTY(QString resultText READ resultText NOTIFY resultChanged)

public:
    struct Services {
        Scheduler &scheduler;
        FileChooser &chooser;
        ExportFolder &folder;
        Pasteboard &pasteboard;
    };

    ExportViewModel(const AppState &appState, const Services &services, QObject *parent = nullptr);

    /// Binds the export commands.
    void bindTo(CommandListModel &commands);

    /// Whether an export has been running for longer than half a second.
    bool showProgress() const { return m_showProgress; }
    // Alerts keep their texts while they fade out.
    QString progressText() const { return m_progressText; }
    bool asksToReplace() const { return m_asksToReplace; }
    QString questionTitle() const { return m_questionTitle; }
    QString questionText() const { return m_questionText; }
    bool showResult() const { return m_showResult; }
    bool hasFailed() const { return m_hasFailed; }
    QString resultTitle() const { return m_resultTitle; }
    QString resultText() const { return m_resultText; }

    /// Copies the open page as Markdown. Does nothing if no page is open.
    Q_INVOKABLE void copyAsMarkdown();
    /// Exports the open page to a folder that the user chooses.
    Q_INVOKABLE void exportDocument();
    /// Exports all pages to a folder "Pelko" in the folder that the user chooses.
    Q_INVOKABLE void exportLibrary();
    // Answers to the question about existing files. They do nothing if it is not shown.
    Q_INVOKABLE void replace();
    Q_INVOKABLE void keep();
    /// Cancels the running export.
    Q_INVOKABLE void stop();
    Q_INVOKABLE void dismissResult();

Q_SIGNALS:
    void showProgressChanged();
    void progressTextChanged();
    void asksToReplaceChanged();
    void questionChanged();
    void showResultChanged();
    void resultChanged();

private:
    /// The documents to export, and the target folder.
    struct Request {
        QList<PelkoDocument> documents;
        bool isLibrary = false;
        std::filesystem::path folder = {};
    };

    void begin(Request request);
    void take(const FileChooser::Choice &choice);
    void write(ExportFolder::Existing existing);
    void finish(const ExportFolder::Outcome &outcome);
    void ask(const QStringList &taken);
    void tell(const FileError &error);
    void tellSuccess();
    void setResult(bool failed, const QString &title, const QString &text);
    void setProgress(bool shown);
    QString folderName() const;

    const AppState &m_appState;
    const Services m_services;
    Request m_request;
    bool m_isBusy = false;
    ScheduledCall m_choosing;
    ScheduledCall m_writing;
    ScheduledCall m_patience;
    bool m_showProgress = false;
    QString m_progressText;
    bool m_asksToReplace = false;
    QString m_questionTitle;
    QString m_questionText;
    bool m_showResult = false;
    bool m_hasFailed = false;
    QString m_resultTitle;
    QString m_resultText;
};
