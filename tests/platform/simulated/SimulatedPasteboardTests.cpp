#include "platform/simulated/EffectJson.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>

namespace tarvin::simulated {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class SimulatedPasteboardTest : public testing::Test
{
protected:
    /// What a reading made now hands over, one entry for each call of the handler.
    void read()
    {
        pasteboard.readText([this](const std::optional<PasteboardText>& text) {
            handedOver.push_back(text ? text->text.toStdString() : "nothing");
        });
    }

    SimulatedPlatform desktop;
    SimulatedPasteboard& pasteboard = desktop.pasteboard();
    std::vector<std::string> handedOver;
};

TEST_F(SimulatedPasteboardTest, everyChangeCountsEqualTextIncluded)
{
    EXPECT_EQ(pasteboard.changeCount(), 0);
    pasteboard.copy({.text = u"a"_qs});
    pasteboard.copy({.text = u"a"_qs});
    pasteboard.copyWithoutText();
    pasteboard.setText({.text = u"b"_qs});
    EXPECT_EQ(pasteboard.changeCount(), 4);
}

TEST_F(SimulatedPasteboardTest, whatIsHeldIsHandedOverAtOnce)
{
    read();
    pasteboard.copy({.text = u"a"_qs, .isSecret = true});
    read();
    pasteboard.copyWithoutText();
    read();
    EXPECT_THAT(handedOver, ElementsAre("nothing", "a", "nothing"));
    EXPECT_EQ(pasteboard.readings(), 3);
    EXPECT_EQ(pasteboard.changeCount(), 2);
}

TEST_F(SimulatedPasteboardTest, aSlowOwnerHandsOverTheOldContentLater)
{
    pasteboard.setAnswerDelay(300ms);
    pasteboard.copy({.text = u"slow"_qs});
    read();
    pasteboard.setText({.text = u"new"_qs});
    desktop.scheduler().advance(299ms);
    EXPECT_THAT(handedOver, IsEmpty());
    desktop.scheduler().advance(1ms);
    EXPECT_THAT(handedOver, ElementsAre("slow"));
    read();
    EXPECT_THAT(handedOver, ElementsAre("slow", "new"));
}

TEST_F(SimulatedPasteboardTest, onlyWhatTheProgramPutsThereIsRecorded)
{
    pasteboard.copy({.text = u"theirs"_qs});
    pasteboard.setText({.text = u"ours"_qs});
    pasteboard.setText({.text = u"ours"_qs, .isSecret = true});
    std::vector<std::string> lines;
    for (const Effect& effect : desktop.effects().effects())
        lines.push_back(toJsonLine(effect).toStdString());
    EXPECT_THAT(lines,
        ElementsAre(R"({"at":0,"effect":"clipboard","text":"ours"})",
            R"({"at":0,"effect":"clipboard","text":"ours","secret":true})"));
}

} // namespace
} // namespace tarvin::simulated
