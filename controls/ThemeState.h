// ThemeState: whether the controls may draw with visual styles.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>

namespace controls {

/// Visual styles come and go while the process runs, but the version of its common controls does not: that is asked once and kept.
class ThemeState {
public:
    /// Gives the major version of the common controls, 0 when it is unavailable.
    using VersionQuery = std::function<DWORD()>;

    /// The state that all controls of the process share.
    [[nodiscard]] static ThemeState& OfProcess();

    /// True when styles are active in the system and in this process, and its common controls are of version 6 or later.
    /// https://learn.microsoft.com/windows/win32/api/uxtheme/nf-uxtheme-isthemeactive
    [[nodiscard]] bool IsThemeAvailable();

    /// Asks `query` from now on, or the common controls again when it is empty, and forgets the version that was found before.
    void AskVersionWith(VersionQuery query);

private:
    enum class Version : std::uint8_t { Unknown, BeforeSix, SixOrLater };

    VersionQuery query_;
    Version version_ = Version::Unknown;
};

/// `ThemeState::OfProcess().IsThemeAvailable()`.
[[nodiscard]] bool IsThemeAvailable();

}  // namespace controls
