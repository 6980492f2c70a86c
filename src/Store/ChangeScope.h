#pragma once

#include <algorithm>
#include <utility>
#include <vector>

/// Assigns fields immediately and emits their change signals when the scope ends, each signal once and only
/// for fields that changed. Receivers therefore never see the owner in an intermediate state.
template <typename Owner>
class ChangeScope
{
public:
    using Signal = void (Owner::*)();

    explicit ChangeScope(Owner &owner) : m_owner(owner) {}
    ChangeScope(const ChangeScope &) = delete;
    ChangeScope &operator=(const ChangeScope &) = delete;
    ~ChangeScope()
    {
        for (const Signal signal : m_signals)
            (m_owner.*signal)();
    }

    template <typename Field, typename Value>
    void assign(Field &field, Value &&value, Signal changed)
    {
        if (field == value)
            return;
        field = std::forward<Value>(value);
        announce(changed);
    }

    /// Announces a field that was changed in place.
    void announce(Signal changed)
    {
        if (std::find(m_signals.begin(), m_signals.end(), changed) == m_signals.end())
            m_signals.push_back(changed);
    }

private:
    Owner &m_owner;
    std::vector<Signal> m_signals;
};
