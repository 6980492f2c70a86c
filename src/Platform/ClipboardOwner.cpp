#include "Platform/ClipboardOwner.h"

#include <QDeadlineTimer>
#include <QGuiApplication>

#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
constexpr auto answerTime = 200ms;

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};

bool isOurs(QClipboard::Mode mode)
{
    const QClipboard &clipboard = *QGuiApplication::clipboard();
    return mode == QClipboard::Selection ? clipboard.ownsSelection() : clipboard.ownsClipboard();
}
} // namespace

void ClipboardOwner::Disconnect::operator()(xcb_connection_t *connection) const
{
    xcb_disconnect(connection);
}

ClipboardOwner::ClipboardOwner()
{
    if (QGuiApplication::platformName() != u"xcb"_s)
        return;
    m_connection.reset(xcb_connect(nullptr, nullptr));
    if (!isConnected())
        return;
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data;
    m_window = xcb_generate_id(m_connection.get());
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_flush(m_connection.get());
}

bool ClipboardOwner::isConnected() const
{
    return m_connection && xcb_connection_has_error(m_connection.get()) == 0;
}

bool ClipboardOwner::answers(QClipboard::Mode mode) const
{
    if (!isConnected() || isOurs(mode))
        return true;
    const xcb_atom_t selection =
        mode == QClipboard::Selection ? xcb_atom_t(XCB_ATOM_PRIMARY) : atom("CLIPBOARD");
    if (!hasOwner(selection))
        return true;
    takeAnswer(); // a late answer to an earlier question
    ask(selection);
    return waitForAnswer();
}

bool ClipboardOwner::hasOwner(xcb_atom_t selection) const
{
    const auto cookie = xcb_get_selection_owner(m_connection.get(), selection);
    const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> reply(
        xcb_get_selection_owner_reply(m_connection.get(), cookie, nullptr));
    return reply && reply->owner != XCB_NONE;
}

xcb_atom_t ClipboardOwner::atom(const char *name) const
{
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const auto cookie = xcb_intern_atom(m_connection.get(), 0, length, name);
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
        xcb_intern_atom_reply(m_connection.get(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_NONE);
}

void ClipboardOwner::ask(xcb_atom_t selection) const
{
    const xcb_atom_t targets = atom("TARGETS");
    xcb_convert_selection(m_connection.get(), m_window, selection, targets, targets, XCB_CURRENT_TIME);
    xcb_flush(m_connection.get());
}

/// Takes all pending events. Returns whether one is an answer, which may also say that the owner has no
/// formats.
bool ClipboardOwner::takeAnswer() const
{
    bool isAnswered = false;
    while (const std::unique_ptr<xcb_generic_event_t, Free> event{xcb_poll_for_event(m_connection.get())})
        isAnswered |= (event->response_type & 0x7f) == XCB_SELECTION_NOTIFY;
    return isAnswered;
}

bool ClipboardOwner::waitForAnswer() const
{
    const QDeadlineTimer deadline(answerTime);
    while (!deadline.hasExpired()) {
        pollfd socket{.fd = xcb_get_file_descriptor(m_connection.get()), .events = POLLIN, .revents = 0};
        ::poll(&socket, 1, static_cast<int>(deadline.remainingTime()));
        if (takeAnswer() || !isConnected())
            return true;
    }
    return false;
}
