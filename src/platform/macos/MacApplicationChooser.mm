#include "platform/macos/MacApplicationChooser.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/OpenPanelAnswer.h"

#import <AppKit/AppKit.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#include <utility>

namespace tarvin::macos {

namespace {

static_assert(NSModalResponseOK == confirmedResponse);

NSOpenPanel* makePanel(const ApplicationRequest& request)
{
    NSOpenPanel* const panel = [NSOpenPanel openPanel];
    panel.title = nsString(request.title);
    panel.message = nsString(request.message);
    panel.directoryURL = [NSURL fileURLWithPath:nsString(request.startFolder)];
    panel.canChooseFiles = YES;
    panel.canChooseDirectories = NO;
    panel.allowsMultipleSelection = NO;
    panel.allowedContentTypes = @[ UTTypeApplicationBundle ];
    return panel;
}

/// A modal panel from its opening on, until it has told its answer or is not wanted any more.
class OpenPanel final : public ApplicationDialog
{
public:
    OpenPanel(NSOpenPanel* panel, ApplicationChooser::ChoiceHandler onChoice)
        : m_panel(panel)
        , m_onChoice(std::make_shared<ApplicationChooser::ChoiceHandler>(std::move(onChoice)))
    {
        const auto shared = m_onChoice;
        // In a turn of the main loop and not as a task of the main queue: the panel runs a loop of its own until it is
        // answered, and the queue, which runs one task at a time, would stand still so long.
        CFRunLoopPerformBlock(CFRunLoopGetMain(), kCFRunLoopCommonModes, ^{
            if (!*shared)
                return; // not wanted any more before it was shown
            const NSModalResponse response = [panel runModal];
            if (const auto handler = std::exchange(*shared, nullptr))
                handler(chosenPath(response, optionalString(panel.URL.path)));
        });
        CFRunLoopWakeUp(CFRunLoopGetMain());
    }
    OpenPanel(const OpenPanel&) = delete;
    OpenPanel& operator=(const OpenPanel&) = delete;
    ~OpenPanel() override
    {
        if (std::exchange(*m_onChoice, nullptr) && m_panel.visible)
            [m_panel cancel:nil];
    }

private:
    NSOpenPanel* const m_panel;
    const std::shared_ptr<ApplicationChooser::ChoiceHandler> m_onChoice; ///< empty once it is or need not be told
};

} // namespace

std::unique_ptr<ApplicationDialog> MacApplicationChooser::open(
    const ApplicationRequest& request, ChoiceHandler onChoice)
{
    return std::make_unique<OpenPanel>(makePanel(request), std::move(onChoice));
}

} // namespace tarvin::macos
