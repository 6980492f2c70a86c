#pragma once

#include "Shell/LaunchSequence.h"
#include "Shell/MainViewModel.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"

#include <QFile>
#include <QtQml/qqml.h>

/// A program with manual time and without a disk, for the views of the shell.
class ShellFixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(MainViewModel *main READ mainViewModel CONSTANT)
    Q_PROPERTY(LaunchSequence *launch READ launch CONSTANT)

public:
    explicit ShellFixture(MenuLocation menuLocation = MenuLocation::window) : m_menuPlace(menuLocation) {}

    MainViewModel *mainViewModel() { return &m_main; }
    LaunchSequence *launch() { return &m_launch; }

    Q_INVOKABLE bool isDrawn(const QString &symbol) const
    {
        return QFile::exists(QStringLiteral(":/qt/qml/Pelko/Theme/symbols/%1.svg").arg(symbol));
    }
    Q_INVOKABLE int documentCount() const { return static_cast<int>(m_appState.documents().size()); }
    Q_INVOKABLE void advance(int milliseconds)
    {
        m_scheduler.advance(std::chrono::milliseconds(milliseconds));
    }
    Q_INVOKABLE bool isIn(const QString &space) const { return rawValue(m_appState.currentSpace()) == space; }
    Q_INVOKABLE void showNav() { m_appState.setShowNav(true); }
    Q_INVOKABLE void open(int index) { m_appState.setOpenDocumentID(m_appState.documents()[index].id); }
    Q_INVOKABLE void closeDocument() { m_appState.setOpenDocumentID(std::nullopt); }

    Q_INVOKABLE void createDocuments(int count)
    {
        for (int i = 0; i < count; ++i)
            m_main.createDocument();
    }

    /// Adds a page that was edited one second after the one before.
    Q_INVOKABLE void addPage(const QString &space, const QString &title, const QString &text)
    {
        m_clock.time += 1;
        m_appState.createDocument(spaceFromRawValue(space).value());
        PelkoDocument page = m_appState.documents().last();
        page.blocks[0].content = title;
        page.blocks[1].content = text;
        m_appState.updateDocument(page);
    }

    Q_INVOKABLE void addSpark(const QString &text)
    {
        m_clock.time += 1;
        m_appState.captureSpark(text);
    }

    /// Opens a new page with empty blocks of these kinds.
    Q_INVOKABLE void openPage(const QStringList &kinds)
    {
        PelkoDocument page =
            *m_appState.captureSpark(QStringLiteral("not shown before it is as it should be"));
        page.space = Space::work;
        page.blocks.clear();
        for (const QString &kind : kinds)
            page.blocks.append(Block(blockTypeFromRawValue(kind).value()));
        m_appState.updateDocument(page);
        m_appState.setOpenDocumentID(page.id);
    }

    /// Ends the open picture chooser with an error.
    Q_INVOKABLE void failToChoose(const QString &why) { m_desktop.fileChooser.answer(FileError{why}); }

    Q_INVOKABLE void failToSave()
    {
        m_file.writeError = QStringLiteral("No space left on device");
        m_appState.save();
    }

    Q_INVOKABLE void saveAgain()
    {
        m_file.writeError.reset();
        m_appState.saveChanges();
    }

    Q_INVOKABLE void requestDelete() { m_main.requestDelete(m_main.openDocumentID()); }

private:
    MenuLocation m_menuPlace;
    ManualScheduler m_scheduler;
    ManualClock m_clock;
    ManualDocumentFile m_file;
    ManualDesktop m_desktop;
    AppState m_appState{m_scheduler, m_clock, m_file};
    MainViewModel m_main{m_appState, m_clock, m_desktop.services(m_scheduler), m_menuPlace};
    LaunchSequence m_launch{m_scheduler};
};

/// The same with a menu bar of the system.
class ShellWithMenuBar : public ShellFixture
{
    Q_OBJECT

public:
    ShellWithMenuBar() : ShellFixture(MenuLocation::menuBar) {}
};
