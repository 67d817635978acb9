#pragma once

namespace EmulationManagement::Constants {

inline constexpr char showEmulationManagementViewActionId[]
    = "EmulationManagement.ShowEmulationManagementView.Action";
/// The menu under Tools that the SDK's main plugin owns.
inline constexpr char sdkToolsMenuId[] = "Kiv.Tools.Menu";

} // namespace EmulationManagement::Constants
