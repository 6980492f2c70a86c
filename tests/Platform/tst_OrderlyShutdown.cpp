#include "Platform/OrderlyShutdown.h"
#include "support/TestProgram.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QWindow>

namespace
{
struct EndedProgram {
    bool mayEnd = true;
    bool endsWithWindow = true;
    int saves = 0;
    OrderlyShutdown end{{.mayEnd =
                             [this] {
                                 ++saves;
                                 return mayEnd;
                             },
                         .save =
                             [this] {
                                 ++saves;
                                 return QString();
                             },
                         .saveWithoutDisplay = [this] { ++saves; },
                         .endsWithWindow = [this] { return endsWithWindow; }}};
    QSignalSpy refused{&end, &OrderlyShutdown::refused};
};
} // namespace

class TestOrderlyShutdown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QGuiApplication::setQuitOnLastWindowClosed(false); } // as the program has it

    void aRefusedQuitLeavesTheProgramRunning()
    {
        EndedProgram program;
        program.mayEnd = false;
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qGuiApp, &quit);
        QVERIFY(!quit.isAccepted());
        QCOMPARE(program.refused.size(), 1);
    }

    void closingTheWindowSavesFirst()
    {
        EndedProgram program;
        QWindow window;
        program.end.guard(window);
        window.show();
        QVERIFY(window.close());
        QCOMPARE(program.saves, 1);
    }

    void aWindowStaysOpenWhileTheWriterIsAsked()
    {
        EndedProgram program;
        program.mayEnd = false;
        QWindow window;
        program.end.guard(window);
        window.show();
        QVERIFY(!window.close());
        QVERIFY(window.isVisible());
        QCOMPARE(program.refused.size(), 1);
    }

    void aWindowThatTheProgramOutlivesClosesWithoutAQuestion()
    {
        EndedProgram program;
        program.mayEnd = false;
        program.endsWithWindow = false;
        QWindow window;
        program.end.guard(window);
        window.show();
        QVERIFY(window.close());
        QCOMPARE(program.saves, 1);
        QCOMPARE(program.refused.size(), 0);
    }

    void otherWindowsAreNoConcern()
    {
        EndedProgram program;
        program.mayEnd = false;
        QWindow window;
        window.show();
        QVERIFY(window.close());
        QCOMPARE(program.saves, 0);
    }

    void theLostDisplaySaves()
    {
        const EndedProgram program;
        qWarning("The X11 connection broke (error 1). Did the X11 server die?");
        QCOMPARE(program.saves, 1);
    }
};

PELKO_TEST(TestOrderlyShutdown)
#include "tst_OrderlyShutdown.moc"
