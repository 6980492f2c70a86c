#pragma once

#include "Shell/MainViewModel.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"

/// A program that was started with the given data file.
struct StartedProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualDesktop desktop;
    AppState appState;
    MainViewModel main;

    explicit StartedProgram(const ManualDocumentFile &start = {})
        : file(start)
        , appState(scheduler, clock, file)
        , main(appState, clock, desktop.services(scheduler))
    {
    }

    /// Creates pages one second apart, so that their order by age is defined.
    void createDocuments(int count)
    {
        for (int i = 0; i < count; ++i) {
            clock.time += 1;
            main.createDocument();
        }
    }

    /// Changes a page and waits until the change is saved or saving has failed.
    void typeAndPause()
    {
        if (!appState.openDocument())
            createDocuments(1);
        clock.time += 1;
        appState.updateDocument(*appState.openDocument());
        scheduler.advance(std::chrono::milliseconds(500));
    }

    void callOpenPage(const QString &title)
    {
        PelkoDocument document = *appState.openDocument();
        document.blocks.first().content = title;
        appState.updateDocument(document);
    }

    QString openID() const { return appState.openDocumentID()->toString(QUuid::WithoutBraces); }
};
