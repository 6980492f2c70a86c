// Reading any calendar text ends soon. Each event begins before the end of the window and is returned once,
// and the kind of line endings makes no difference.

#include "Calendar/CalendarContents.h"

#include <cstdint>

namespace
{
void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

QList<CalendarEvent> events(const QByteArray &text, const CalendarWindow &window)
{
    CalendarContents contents(window);
    contents.read(text);
    return contents.events([] { return false; });
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTimeZone zone("Europe/Berlin");
    const CalendarWindow window{.from = 817'027'200, .to = 817'113'600, .zone = zone};
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto read = events(text, window);
    for (const CalendarEvent &event : read)
        require(event.start < window.to);
    if (!text.contains("\r\r"))
        require(events(QByteArray(text).replace("\r\n", "\n"), window) == read);
    return 0;
}
