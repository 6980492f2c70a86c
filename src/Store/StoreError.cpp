#include "Store/StoreError.h"

#include <QCoreApplication>

QString StoreError::description() const
{
    switch (task) {
    case Task::load:
        return QCoreApplication::translate("StoreError", "Failed to load your documents.");
    case Task::save:
        return QCoreApplication::translate("StoreError", "Save failed: %1").arg(cause.description());
    }
    Q_UNREACHABLE();
}
