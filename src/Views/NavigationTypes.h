#pragma once

#include "Navigation/NavigationViewModel.h"

#include <QtQml/qqml.h>

/// Makes the navigation, which knows nothing of QML, known to it.
struct NavigationViewModelForQml {
    Q_GADGET
    QML_FOREIGN(NavigationViewModel)
    QML_NAMED_ELEMENT(NavigationViewModel)
    QML_UNCREATABLE("Part of the main window.")
};

struct HighlightedLineForQml {
    Q_GADGET
    QML_FOREIGN(HighlightedLine)
    QML_VALUE_TYPE(markedLine)
};
