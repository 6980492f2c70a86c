#include "Platform/PrivateBus.h"
#include "Platform/Tray/Tray.h"
#include "Platform/TrayWatcher.h"
#include "Timers/TrayIconState.h"
#include "support/RandomSeeds.h"
#include "support/TestProgram.h"

#include <array>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{
/// Random watchers and hosts that come, go and replace each other, and a tray item.
class RandomDesktops
{
public:
    explicit RandomDesktops(quint32 seed) : m_random(seed)
    {
        m_bus.connection(u"desktop"_s);
        m_tray.connectTo(m_bus.connection(u"pelko"_s));
    }

    /// Performs one random step and returns its name.
    QString step()
    {
        switch (m_random.bounded(8)) {
        case 0:
        case 1:
            return comeAsOwner();
        case 2:
            return leave();
        case 3:
        case 4:
            return toggleHost();
        case 5:
            return answerLate();
        case 6:
            return toggleHostOfAFormerOwner();
        default:
            return show();
        }
    }

    /// Returns an empty text if the item is registered with the watcher and `isPresent` is right. Otherwise
    /// describes the difference.
    QString complaint() const
    {
        const bool isShown = m_owner && m_owner->hasAccepted() && m_owner->hasHost;
        const QStringList items = m_owner ? m_owner->items : QStringList{item()};
        if (items.count(item()) > 0 && m_tray.isPresent() == isShown)
            return {};
        return u"items: %1; present: %2, not %3"_s.arg(items.join(u' ')).arg(m_tray.isPresent()).arg(isShown);
    }

    /// Processes all messages. A reply may cause another call, up to four in a row.
    void settle()
    {
        for (int round = 0; round < 5; ++round) {
            ping(u"desktop"_s, u"pelko"_s);
            ping(u"pelko"_s, u"desktop"_s);
        }
    }

    bool isInHurry() { return m_random.bounded(2) == 0; }

private:
    static QString item()
    {
        return u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid());
    }

    QString comeAsOwner()
    {
        using Registration = TrayWatcher::Registration;
        constexpr std::array answers{Registration::accepted, Registration::accepted, Registration::refused,
                                     Registration::unanswered};
        if (m_owner)
            m_former.push_back(std::move(m_owner));
        const QString connection = u"watcher %1"_s.arg(++m_count);
        m_owner = std::make_unique<TrayWatcher>(m_bus.connection(connection), answers[m_random.bounded(4)]);
        m_owner->hasHost = m_random.bounded(4) > 0;
        return u"a watcher comes"_s;
    }

    QString show()
    {
        TrayIconState face;
        face.isRunning = m_random.bounded(2) == 0;
        face.minutesLeft = int(m_random.bounded(25));
        m_tray.show(face);
        return u"show"_s;
    }

    QString leave()
    {
        m_owner.reset();
        return u"the watcher leaves"_s;
    }

    QString toggleHost()
    {
        if (m_owner)
            m_owner->setHost(!m_owner->hasHost);
        return u"host"_s;
    }

    QString answerLate()
    {
        TrayWatcher *watcher = m_former.empty() || m_random.bounded(2) == 0
                                   ? m_owner.get()
                                   : m_former[m_random.bounded(int(m_former.size()))].get();
        if (watcher)
            watcher->answer(m_random.bounded(3) == 0 ? TrayWatcher::Registration::refused
                                                     : TrayWatcher::Registration::accepted);
        return u"late answer"_s;
    }

    QString toggleHostOfAFormerOwner()
    {
        if (!m_former.empty()) {
            TrayWatcher &watcher = *m_former[m_random.bounded(int(m_former.size()))];
            watcher.setHost(!watcher.hasHost);
        }
        return u"host of a former owner"_s;
    }

    /// A round trip: messages between two connections keep their order, so all earlier ones have arrived
    /// after it.
    static void ping(const QString &from, const QString &to)
    {
        const auto message = QDBusMessage::createMethodCall(QDBusConnection(to).baseService(), u"/"_s,
                                                            u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
        QCOMPARE(QDBusConnection(from).call(message).type(), QDBusMessage::ReplyMessage);
        QCoreApplication::processEvents();
    }

    QRandomGenerator m_random;
    PrivateBus m_bus;
    int m_count = 0;
    std::vector<std::unique_ptr<TrayWatcher>> m_former;
    std::unique_ptr<TrayWatcher> m_owner;
    Tray m_tray;
};
} // namespace

/// After random changes, the item is registered with every watcher there is.
class TestTrayHandover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theItemFollowsTheWatcher_data() { addRandomSeeds(); }
    void theItemFollowsTheWatcher()
    {
        QFETCH(quint32, seed);
        RandomDesktops desktops(seed);
        QStringList steps;
        for (int step = 0; step < 200; ++step) {
            steps << desktops.step();
            if (desktops.isInHurry())
                continue;
            desktops.settle();
            const QString complaint = desktops.complaint();
            QVERIFY2(complaint.isEmpty(),
                     qPrintable(u"after %1 steps, the last of them %2: %3"_s.arg(
                         QString::number(step + 1), steps.mid(step - 5).join(u", "_s), complaint)));
        }
    }
};

PELKO_TEST(TestTrayHandover)
#include "tst_TrayHandover.moc"
