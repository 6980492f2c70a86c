#pragma once

#include <QClipboard>

#include <cstdint>
#include <memory>

struct xcb_connection_t;

/// Tells whether the program that owns the X11 clipboard or primary selection still answers. It has a
/// own connection to the X server, so that Qt does not receive the answers, and keeps it open: the owner may
/// answer late, to a window that must still be there.
class ClipboardOwner
{
public:
    ClipboardOwner();

    /// Waits for an answer for a fifth of a second at most. Also true if there is no owner, if this
    /// program does, and on platforms other than X11.
    bool answers(QClipboard::Mode mode) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t *connection) const;
    };

    bool isConnected() const;
    bool hasOwner(std::uint32_t selection) const;
    std::uint32_t atom(const char *name) const;
    /// Asks the owner for its formats.
    void ask(std::uint32_t selection) const;
    bool takeAnswer() const;
    bool waitForAnswer() const;

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    std::uint32_t m_window = 0;
};
