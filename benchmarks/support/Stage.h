#pragma once

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <chrono>
#include <ctime>
#include <memory>
#include <thread>

using Milliseconds = std::chrono::duration<double, std::milli>;

inline constexpr Milliseconds frameTime(1000.0 / 60);

/// The processor time that this program has used so far.
inline Milliseconds worked()
{
    return Milliseconds(1000.0 * double(std::clock()) / CLOCKS_PER_SEC);
}

/// A window whose frames are drawn when this says so and at no other time.
class Stage : public QObject
{
public:
    Stage(const QByteArray &qml, const QVariantMap &properties)
    {
        m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        QQmlComponent component(&m_engine);
        component.setData(qml, {});
        m_window.reset(qobject_cast<QQuickWindow *>(component.createWithInitialProperties(properties)));
        if (!m_window)
            qFatal("%s", qPrintable(component.errorString()));
        m_window->show();
        m_window->requestActivate();
        while (!m_window->isExposed() || !m_window->isActive())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        m_window->installEventFilter(this);
        settle(10);
    }

    /// The items have to go while their window is there.
    ~Stage() override
    {
        qDeleteAll(m_window->contentItem()->childItems());
        breathe();
    }

    QQuickWindow &window() const { return *m_window; }

    /// Lets everything that was put off happen, for so many frames.
    void settle(int frames)
    {
        for (int frame = 0; frame < frames; ++frame) {
            std::this_thread::sleep_for(frameTime);
            breathe();
            draw();
        }
    }

    /// Does what an event loop does between two events.
    void breathe()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void draw()
    {
        m_draws = true;
        QEvent request(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(m_window.get(), &request);
        m_draws = false;
    }

    void type(Qt::Key key, const QString &text)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(m_window.get(), &event);
        }
        QCoreApplication::sendPostedEvents();
    }

    void point(QEvent::Type type, QPointF place, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, place, m_window->mapToGlobal(place), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &event);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        return event->type() == QEvent::UpdateRequest && !m_draws;
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    bool m_draws = false;
};

/// A letter and its removal in turn, each with the frame that shows it.
inline void writeKeys(benchmark::State &state, Stage &stage)
{
    bool written = false;
    for (auto _ : state) {
        const Milliseconds start = worked();
        written ? stage.type(Qt::Key_Backspace, QStringLiteral("\b"))
                : stage.type(Qt::Key_X, QStringLiteral("x"));
        stage.draw();
        state.SetIterationTime((worked() - start).count() / 1000);
        written = !written;
    }
}
