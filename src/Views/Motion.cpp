#include "Motion.h"

Motion::Motion(QObject *parent)
    : QObject(parent)
    , m_isReduced(qEnvironmentVariableIntValue("PELKO_REDUCED_MOTION") != 0)
{
}

void Motion::setReduced(bool reduced)
{
    if (m_isReduced == reduced)
        return;
    m_isReduced = reduced;
    Q_EMIT reducedChanged();
}
