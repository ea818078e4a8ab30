#pragma once

#include "profiles/KeyProfile.h"

namespace tarvin {

/// The record of the key under edit. Every change is final and stored when the call returns. Main thread only; the
/// profile outlives it.
class KeyRecord
{
public:
    KeyRecord(FKey key, KeyProfile& profile)
        : m_key(key)
        , m_profile(profile)
    { }

    [[nodiscard]] FKey key() const { return m_key; }
    /// As it is now, in the profile that is being edited.
    [[nodiscard]] ConfiguredAction config() const { return m_profile.actionConfig(m_key); }
    [[nodiscard]] KeyProfile& profile() const { return m_profile; }

    /// Lets @p edit change the record as it is now, and stores it.
    template <typename Edit> void change(const Edit& edit) const
    {
        ConfiguredAction changed = config();
        edit(changed);
        m_profile.setConfig(changed, m_key);
    }

    /// Chooses the action. Every parameter stays, so that coming back finds it unchanged.
    void choose(KeyAction action) const
    {
        change([action](ConfiguredAction& changed) { changed.action = action; });
    }

private:
    FKey m_key;
    KeyProfile& m_profile;
};

} // namespace tarvin
