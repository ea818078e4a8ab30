#pragma once

namespace tarvin {

class ActionChains;
class ContentActions;
class QuickFlip;
class SystemActions;
class ToolPanel;
class WindowActions;

/// Who performs what the dispatchers do not do themselves. All of them outlive whoever holds this.
struct Performers
{
    ActionChains& chains;
    ContentActions& content;
    SystemActions& system;
    WindowActions& windows;
    QuickFlip& quickFlip;
    ToolPanel& actionsRing;
    ToolPanel& clipboardHistory;
    ToolPanel& floatingScratchpad;
};

} // namespace tarvin
