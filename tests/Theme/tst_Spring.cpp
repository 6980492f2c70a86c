#include "Theme/PelkoAnimation.h"
#include "support/TestProgram.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace
{

/// Returns the largest distance between the curve and the spring over the whole duration.
qreal largestError(const Spring &spring)
{
    const QEasingCurve curve = spring.curve();
    const qreal total = spring.settlingTime();
    qreal largest = 0;
    for (int i = 0; i <= 20000; ++i) {
        const qreal progress = i / 20000.0;
        largest = qMax(largest, qAbs(curve.valueForProgress(progress) - spring.position(progress * total)));
    }
    return largest;
}

qreal peakOf(const QEasingCurve &curve)
{
    qreal peak = 0;
    for (int i = 0; i <= 20000; ++i)
        peak = qMax(peak, curve.valueForProgress(i / 20000.0));
    return peak;
}

} // namespace

class TestSpring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void positionSolvesTheEquationOfADampedSpring_data() { springs(); }
    void positionSolvesTheEquationOfADampedSpring();
    void pullIsTheSameMotionSeenFromItsGoal_data() { springs(); }
    void pullIsTheSameMotionSeenFromItsGoal();
    void pullMayBeInterruptedAnywhere_data() { springs(); }
    void pullMayBeInterruptedAnywhere();
    void settlesForGoodAfterItsDuration_data() { springs(); }
    void settlesForGoodAfterItsDuration();
    void curveFollowsTheSpring_data() { springs(); }
    void curveFollowsTheSpring();
    void curveNeverHasMoreThanTenSegments_data() { springs(); }
    void curveNeverHasMoreThanTenSegments();
    void overshootsAsFarAsTheDampingSays_data();
    void overshootsAsFarAsTheDampingSays();
    void criticalSpringNeverOvershoots();
    void presetsHaveTheirFigures();
    void presetsGrowSlowerFromMicroToSettle();

private:
    static void springs();
};

void TestSpring::springs()
{
    QTest::addColumn<qreal>("response");
    QTest::addColumn<qreal>("dampingFraction");
    QTest::newRow("micro") << 0.15 << 0.90;
    QTest::newRow("smooth") << 0.35 << 0.82;
    QTest::newRow("bouncy") << 0.40 << 0.70;
    QTest::newRow("settle") << 0.50 << 0.85;
    QTest::newRow("chip hover") << 0.32 << 1.0;
    QTest::newRow("chip press") << 0.18 << 0.55;
    QTest::newRow("delete hover") << 0.35 << 0.7;
    QTest::newRow("delete press") << 0.2 << 0.5;
    QTest::newRow("flow") << 0.4 << 0.75;
}

void TestSpring::positionSolvesTheEquationOfADampedSpring()
{
    QFETCH(qreal, response);
    QFETCH(qreal, dampingFraction);
    const Spring spring{response, dampingFraction};
    const qreal omega = 2 * M_PI / response;
    const qreal step = response * 1e-4;
    QCOMPARE(spring.position(0) + 1, 1.0);
    QCOMPARE(spring.velocity(0) + 1, 1.0);
    for (int i = 1; i < 200; ++i) {
        const qreal now = i * response / 100;
        const qreal slope = (spring.position(now + step) - spring.position(now - step)) / (2 * step);
        const qreal bend = (spring.velocity(now + step) - spring.velocity(now - step)) / (2 * step);
        const qreal force = omega * omega * (1 - spring.position(now));
        const qreal friction = 2 * dampingFraction * omega * spring.velocity(now);
        QVERIFY(qAbs(slope - spring.velocity(now)) < omega * 1e-6);
        QVERIFY(qAbs(bend - (force - friction)) < omega * omega * 1e-6);
    }
}

void TestSpring::pullIsTheSameMotionSeenFromItsGoal()
{
    QFETCH(qreal, response);
    QFETCH(qreal, dampingFraction);
    const Spring spring{response, dampingFraction};
    for (int i = 0; i < 100; ++i) {
        const qreal now = i * response / 50;
        const Spring::State state = spring.pulledToZero({-1, 0}, now);
        QVERIFY(qAbs(state.position - (spring.position(now) - 1)) < 1e-9);
        QVERIFY(qAbs(state.velocity - spring.velocity(now)) < 1e-9 * spring.response + 1e-6);
    }
}

void TestSpring::pullMayBeInterruptedAnywhere()
{
    QFETCH(qreal, response);
    QFETCH(qreal, dampingFraction);
    const Spring spring{response, dampingFraction};
    const Spring::State half = spring.pulledToZero({3, -8}, 0.05);
    const Spring::State inTwoSteps = spring.pulledToZero(half, 0.07);
    const Spring::State inOneStep = spring.pulledToZero({3, -8}, 0.12);
    QVERIFY(qAbs(inTwoSteps.position - inOneStep.position) < 1e-9);
    QVERIFY(qAbs(inTwoSteps.velocity - inOneStep.velocity) < 1e-6);
}

void TestSpring::settlesForGoodAfterItsDuration()
{
    QFETCH(qreal, response);
    QFETCH(qreal, dampingFraction);
    const Spring spring{response, dampingFraction};
    const qreal settled = spring.settlingTime();
    QCOMPARE(spring.duration(), qRound(settled * 1000));
    QVERIFY(qAbs(1 - spring.position(settled - response / 500)) >= Spring::settleThreshold);
    for (int i = 0; i < 2000; ++i)
        QVERIFY(qAbs(1 - spring.position(settled + i * response / 500)) < Spring::settleThreshold);
}

void TestSpring::curveFollowsTheSpring()
{
    QFETCH(qreal, response);
    QFETCH(qreal, dampingFraction);
    // The springs of some controls oscillate more often; ten segments approximate them less closely.
    const qreal allowed = dampingFraction < 0.6 ? 0.0013 : 0.001;
    const qreal error = largestError({response, dampingFraction});
    QVERIFY2(error <= allowed, qPrintable(u"error %1"_s.arg(error)));
}

void TestSpring::curveNeverHasMoreThanTenSegments()
{
    QFETCH(qreal, response);
    QFETCH(qreal, dampingFraction);
    const QEasingCurve curve = Spring{response, dampingFraction}.curve();
    QCOMPARE(curve.type(), QEasingCurve::BezierSpline);
    QCOMPARE(curve.toCubicSpline().size(), 3 * 10);
    QCOMPARE(curve.valueForProgress(0), 0.0);
    QCOMPARE(curve.valueForProgress(1), 1.0);
}

void TestSpring::overshootsAsFarAsTheDampingSays_data()
{
    QTest::addColumn<Spring>("spring");
    QTest::addColumn<int>("thousandths");
    QTest::newRow("bouncy") << PelkoAnimation::bouncySpring << 1046;
    QTest::newRow("chip press") << Spring{0.18, 0.55} << 1126;
    QTest::newRow("delete press") << Spring{0.2, 0.5} << 1163;
}

void TestSpring::overshootsAsFarAsTheDampingSays()
{
    QFETCH(Spring, spring);
    QFETCH(int, thousandths);
    // The first peak of a damped spring is 1 + e^(-pi z / sqrt(1 - z^2)).
    const qreal damping = spring.dampingFraction;
    const qreal peak = 1 + std::exp(-M_PI * damping / std::sqrt(1 - damping * damping));
    QCOMPARE(qRound(peak * 1000), thousandths);
    QVERIFY(qAbs(peakOf(spring.curve()) - peak) < 0.0005);
}

void TestSpring::criticalSpringNeverOvershoots()
{
    QVERIFY(peakOf(Spring{0.32, 1.0}.curve()) <= 1.0);
}

void TestSpring::presetsHaveTheirFigures()
{
    const PelkoAnimation animation;
    QCOMPARE(PelkoAnimation::microSpring, (Spring{0.15, 0.90}));
    QCOMPARE(PelkoAnimation::smoothSpring, (Spring{0.35, 0.82}));
    QCOMPARE(PelkoAnimation::bouncySpring, (Spring{0.40, 0.70}));
    QCOMPARE(PelkoAnimation::settleSpring, (Spring{0.50, 0.85}));
    QCOMPARE(animation.bouncy().curve(), PelkoAnimation::bouncySpring.curve());
    QCOMPARE(animation.smooth().duration(), animation.spring(0.35, 0.82).duration());
}

void TestSpring::presetsGrowSlowerFromMicroToSettle()
{
    const PelkoAnimation animation;
    QVERIFY(animation.micro().duration() < animation.smooth().duration());
    QVERIFY(animation.smooth().duration() < animation.settle().duration());
    QVERIFY(PelkoAnimation::bouncySpring.response < PelkoAnimation::settleSpring.response);
}

PELKO_TEST(TestSpring)
#include "tst_Spring.moc"
