#pragma once

#include <QList>
#include <QPointer>

#include <algorithm>
#include <ranges>

/// The fields or blocks of a page, which the view creates and destroys as it scrolls. Only members that exist
/// and are on the page are returned, so a destroyed one need not be removed.
template <typename Member>
class PageMembers
{
public:
    void add(Member &member)
    {
        m_members.removeIf([](const QPointer<Member> &known) { return known.isNull(); });
        m_members.append(&member);
    }

    /// The latest first: a row that is created again can exist beside the old one.
    QList<Member *> all() const
    {
        QList<Member *> found;
        for (const QPointer<Member> &member : std::views::reverse(m_members)) {
            if (member && member->isOnPage())
                found.append(member);
        }
        return found;
    }

    /// Returns the latest member with this `id()`, or nullptr.
    template <typename ID>
    Member *find(const ID &id) const
    {
        const auto found =
            std::ranges::find_if(m_members.crbegin(), m_members.crend(), [&](const QPointer<Member> &member) {
                return member && member->isOnPage() && member->id() == id;
            });
        return found == m_members.crend() ? nullptr : found->data();
    }

private:
    QList<QPointer<Member>> m_members;
};
