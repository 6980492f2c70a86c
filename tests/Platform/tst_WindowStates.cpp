#include "Platform/WindowStates.h"
#include "support/TestProgram.h"

#include <QWindow>

class TestWindowStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fullScreenAndBack_data()
    {
        QTest::addColumn<Qt::WindowStates>("before");
        QTest::newRow("normal") << Qt::WindowStates(Qt::WindowNoState);
        QTest::newRow("maximised") << Qt::WindowStates(Qt::WindowMaximized);
    }

    void fullScreenAndBack()
    {
        QFETCH(Qt::WindowStates, before);
        QWindow window;
        window.setWindowStates(before);
        toggleFullScreen(window);
        QVERIFY(fillsScreen(window));
        toggleFullScreen(window);

        QVERIFY(!fillsScreen(window));
        QCOMPARE(window.windowStates(), before);
    }

    void comingToTheFrontKeepsTheSize_data()
    {
        QTest::addColumn<Qt::WindowStates>("before");
        QTest::addColumn<Qt::WindowStates>("after");
        const Qt::WindowStates maximised = Qt::WindowMaximized;
        QTest::newRow("maximised") << maximised << maximised;
        QTest::newRow("full screen") << Qt::WindowStates(Qt::WindowFullScreen)
                                     << Qt::WindowStates(Qt::WindowFullScreen);
        QTest::newRow("minimised") << (maximised | Qt::WindowMinimized) << maximised;
    }

    void comingToTheFrontKeepsTheSize()
    {
        QFETCH(Qt::WindowStates, before);
        QWindow window;
        window.setWindowStates(before);
        bringToFront(window);

        QVERIFY(window.isVisible());
        QTEST(window.windowStates(), "after");
    }
};

PELKO_TEST(TestWindowStates)
#include "tst_WindowStates.moc"
