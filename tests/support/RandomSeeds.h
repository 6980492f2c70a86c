#pragma once

#include <QRandomGenerator>
#include <QTest>

/// Adds rows to a random test: three fixed seeds and a new one, or only PELKO_SEED. The row's name contains
/// the seed, so that a failure can be replayed: `PELKO_SEED=1234 tests_Tasks tst_TasksPanelYear`.
inline void addRandomSeeds()
{
    QTest::addColumn<quint32>("seed");
    const auto add = [](quint32 seed) { QTest::addRow("seed %u", seed) << seed; };
    bool isGiven = false;
    const quint32 given = qEnvironmentVariable("PELKO_SEED").toUInt(&isGiven);
    if (isGiven) {
        add(given);
        return;
    }
    for (const quint32 seed : {1U, 2U, 3U})
        add(seed);
    const quint32 fresh = QRandomGenerator::global()->generate();
    qInfo("new seed: PELKO_SEED=%u", fresh);
    add(fresh);
}
