#pragma once

#include "Theme/PelkoAnimation.h"

#include <QtQml/qqml.h>

/// Makes the springs, which know nothing of QML, known to it.
struct SpringMotionForQml {
    Q_GADGET
    QML_FOREIGN(SpringMotion)
    QML_VALUE_TYPE(springMotion)
};

struct PelkoAnimationForQml {
    Q_GADGET
    QML_FOREIGN(PelkoAnimation)
    QML_NAMED_ELEMENT(PelkoAnimation)
    QML_SINGLETON
};
