#include "Platform/LocalExportFolder.h"

#include "Platform/ExportWriter.h"

#include <QCoreApplication>

LocalExportFolder::LocalExportFolder()
{
    m_writer.setMaxThreadCount(1);
}

ScheduledCall LocalExportFolder::write(const std::filesystem::path &folder, Producer produce,
                                       Existing existing, Completion completion)
{
    const auto request = std::make_shared<Completion>(std::move(completion));
    m_writer.start([waiting = std::weak_ptr(request), folder, produce = std::move(produce), existing] {
        const auto isWaitedFor = [&waiting](qsizetype, qsizetype) { return !waiting.expired(); };
        const Outcome outcome = ExportWriter(folder, existing).write(produce(), isWaitedFor);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [waiting, outcome] {
                if (const auto tell = waiting.lock())
                    (*tell)(outcome);
            },
            Qt::QueuedConnection);
    });
    return ScheduledCall(request);
}
