#pragma once

#include "Models/PelkoDocument.h"

/// What a library costs by way of QJsonDocument. Nothing is checked, and checklists are left out.
QList<PelkoDocument> readWithQJson(const QByteArray &json);
QByteArray writeWithQJson(const QList<PelkoDocument> &documents);
