#include "writer/RunningProgram.h"

#include "Views/SceneTeardown.h"

#include <QAnimationDriver>
#include <QExposeEvent>
#include <QGuiApplication>
#include <QVariantAnimation>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto frame = 16ms;

/// Advances animations and QML timers by one frame when told to.
class ManualAnimations : public QAnimationDriver
{
public:
    static ManualAnimations &shared()
    {
        static auto *animations = new ManualAnimations(QCoreApplication::instance());
        return *animations;
    }

    qint64 elapsed() const override { return m_elapsed; }
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }
    void advance() override
    {
        m_elapsed += frame.count();
        advanceAnimation();
    }

private:
    explicit ManualAnimations(QObject *parent) : QAnimationDriver(parent)
    {
        install();
        // Without a running animation, QML timers would use the system's time.
        m_pulse.setLoopCount(-1);
        m_pulse.setStartValue(0);
        m_pulse.setEndValue(1);
        m_pulse.start();
    }

    qint64 m_elapsed = 0;
    QVariantAnimation m_pulse;
};

/// Without a running event loop, deleteLater() needs this.
void processEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Lays out and draws immediately instead of waiting for a frame of the screen.
void draw(QQuickWindow &window)
{
    QExposeEvent event(QRect(QPoint(), window.size()));
    QCoreApplication::sendEvent(&window, &event);
}

} // namespace

RunningProgram::RunningProgram(ManualSystem &system) : m_system(system)
{
    ManualAnimations::shared();
    m_exports.bindTo(*m_main.commands()->list());
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    m_engine.setInitialProperties({{u"main"_s, QVariant::fromValue(&m_main)},
                                   {u"launch"_s, QVariant::fromValue(&m_launch)},
                                   {u"timers"_s, QVariant::fromValue(&m_timers)},
                                   {u"tasks"_s, QVariant::fromValue(&m_tasks)},
                                   {u"exports"_s, QVariant::fromValue(&m_exports)},
                                   {u"folderChooser"_s, QVariant::fromValue(&m_folderChooser)}});
    m_engine.load(QUrl(u"qrc:/qt/qml/Pelko/Views/Shell/PelkoWindow.qml"_s));
    m_window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().value(0));
    Q_ASSERT(m_window);
    m_window->resize(900, 600);
    m_window->requestActivate();
    pass(500ms);
    m_launch.cancel();
    pass(2s);
}

RunningProgram::~RunningProgram()
{
    tearDownScene(*m_window);
    processEvents();
}

void RunningProgram::pass(std::chrono::milliseconds time)
{
    for (auto left = time; left > 0ms; left -= frame) {
        m_system.scheduler.advance(std::min(left, frame));
        m_system.clock.time += std::chrono::duration<double>(std::min(left, frame)).count();
        ManualAnimations::shared().advance();
        processEvents();
    }
    // New rows have a position after they were drawn.
    draw(*m_window);
    processEvents();
}
