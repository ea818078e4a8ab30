#include "profiles/KeyProfile.h"

#include "profiles/ProfileDesktop.h"

#include <algorithm>

namespace tarvin {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RuntimeResolutionTest : public ProfileDesktop
{
protected:
    /// Makes the key type the text in the profile, and leaves the profile for all applications as the current one.
    void customise(const AppProfile& in, FKey key, const QString& text)
    {
        profile().setCurrentProfile(in);
        profile().setConfig(typing(text), key);
        profile().setCurrentProfile(AppProfile::global());
    }

    void bringSafariToFront() { bringToFront({u"com.apple.Safari"_qs}); }
    void bringTerminalToFront() { bringToFront({u"com.apple.Terminal"_qs}); }
};

TEST_F(RuntimeResolutionTest, theMasterSwitchPausesEveryKey)
{
    for (const FKey key : allFKeys)
        customise(AppProfile::global(), key, u"a"_qs);
    EXPECT_EQ(profile().customKeys(), FKeySet::all());
    profile().setInterceptionEnabled(false);
    for (const FKey key : allFKeys) {
        EXPECT_EQ(profile().runtimeCustomConfig(key), nullptr);
        EXPECT_EQ(profile().runtimeCustomAction(key), std::nullopt);
        EXPECT_EQ(profile().runtimeEffectiveConfig(key), ConfiguredAction(defaultAction(key)));
        EXPECT_FALSE(profile().isInterceptionActive(key));
        EXPECT_TRUE(profile().isCustomized(key));
        EXPECT_FALSE(profile().isEffectivelyActive(key));
    }
}

TEST_F(RuntimeResolutionTest, theSwitchOfTheFunctionKeysPausesTheFunctionRowAlone)
{
    for (const FKey key : allFKeys)
        customise(AppProfile::global(), key, u"a"_qs);
    profile().setFunctionKeysEnabled(false);
    EXPECT_EQ(typed(FKey::f5), QString());
    EXPECT_EQ(typed(FKey::f13), u"a");
    for (const FKey key : allFKeys)
        EXPECT_EQ(profile().isEffectivelyActive(key), orderOf(key) >= 12) << testing::PrintToString(key);
    for (const FKey key : allFKeys)
        EXPECT_EQ(profile().customKeys().contains(key), orderOf(key) >= 12) << testing::PrintToString(key);
}

TEST_F(RuntimeResolutionTest, theSwitchOfTheOtherKeysPausesAllButTheFunctionRow)
{
    for (const FKey key : allFKeys)
        customise(AppProfile::global(), key, u"a"_qs);
    profile().setOtherKeysEnabled(false);
    EXPECT_EQ(typed(FKey::capsLock), QString());
    EXPECT_EQ(typed(FKey::f13), QString());
    EXPECT_EQ(typed(FKey::f1), u"a");
    for (const FKey key : allFKeys)
        EXPECT_EQ(profile().runtimeCustomConfig(key) != nullptr, orderOf(key) < 12) << testing::PrintToString(key);
}

TEST_F(RuntimeResolutionTest, theApplicationsProfileComesBeforeTheOneForAllKeyByKey)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    customise(AppProfile::global(), FKey::f1, u"global"_qs);
    customise(AppProfile::global(), FKey::f2, u"global"_qs);
    bringSafariToFront();
    EXPECT_EQ(typed(FKey::f1), u"safari");
    EXPECT_EQ(typed(FKey::f2), u"global");
    bringTerminalToFront();
    EXPECT_EQ(typed(FKey::f1), u"global");
}

TEST_F(RuntimeResolutionTest, aRecordThatIsNotCustomIsPassedOver)
{
    stageMain(
        R"({"safari": {"F1": "brightness_down"}, "global": {"F1": {"action": "text_snippet", "textSnippet": "g"}}})");
    bringSafariToFront();
    EXPECT_EQ(profile().profileMappings().at(u"safari"_qs).size(), 1);
    EXPECT_EQ(typed(FKey::f1), u"g");
}

TEST_F(RuntimeResolutionTest, aRecordForAllThatIsNotCustomIsPassedOverToo)
{
    stageMain(R"({"global": {"F1": "brightness_down"}, "xcode": {"F1": "copy"}})");
    profile().setCurrentProfile(AppProfile::xcode());
    EXPECT_EQ(profile().runtimeCustomAction(FKey::f1), KeyAction::copy);
}

TEST_F(RuntimeResolutionTest, noRecordThatIsNotCustomIsEverInForce)
{
    stageMain(R"({"global": {"F1": "brightness_down"}, "safari": {"F1": "brightness_down"}})");
    bringSafariToFront();
    EXPECT_EQ(profile().runtimeCustomConfig(FKey::f1), nullptr);
    EXPECT_EQ(profile().runtimeEffectiveConfig(FKey::f1), ConfiguredAction(KeyAction::brightnessDown));
    EXPECT_TRUE(profile().customKeys().empty());
}

TEST_F(RuntimeResolutionTest, theProfileUnderEditCountsInEveryApplicationAsTheLast)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    customise(AppProfile::safari(), FKey::f2, u"safari"_qs);
    customise(AppProfile::global(), FKey::f2, u"global"_qs);
    bringTerminalToFront();
    EXPECT_EQ(typed(FKey::f1), QString());
    profile().setCurrentProfile(AppProfile::safari());
    EXPECT_EQ(typed(FKey::f1), u"safari");
    EXPECT_EQ(typed(FKey::f2), u"global");
}

TEST_F(RuntimeResolutionTest, afterARelaunchTheKeyWorksInItsApplicationOnly)
{
    profile().setCurrentProfile(AppProfile::safari());
    profile().setConfig(typing(u"safari"_qs), FKey::f1);
    quit();
    bringTerminalToFront();
    EXPECT_EQ(typed(FKey::f1), QString());
    bringSafariToFront();
    EXPECT_EQ(typed(FKey::f1), u"safari");
}

TEST_F(RuntimeResolutionTest, anApplicationWithoutIdentifierHasNoLevelOfItsOwn)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    customise(AppProfile::global(), FKey::f2, u"global"_qs);
    customise(AppProfile::xcode(), FKey::f3, u"xcode"_qs);
    bringSafariToFront();
    bringToFront({});
    EXPECT_EQ(profile().cachedFrontmostBundleId(), std::nullopt);
    profile().setCurrentProfile(AppProfile::xcode());
    EXPECT_EQ(typed(FKey::f1), QString());
    EXPECT_EQ(typed(FKey::f2), u"global");
    EXPECT_EQ(typed(FKey::f3), u"xcode");
}

TEST_F(RuntimeResolutionTest, ofTwoProfilesForOneApplicationOnlyTheFirstIsAsked)
{
    profile().addAppProfile(u"Safari"_qs, u"com.apple.Safari"_qs, u"app.fill"_qs);
    profile().setConfig(typing(u"second"_qs), FKey::f1);
    customise(AppProfile::safari(), FKey::f2, u"first"_qs);
    bringSafariToFront();
    EXPECT_EQ(typed(FKey::f1), QString());
    EXPECT_EQ(typed(FKey::f2), u"first");
}

TEST_F(RuntimeResolutionTest, anAddedApplicationCountsAtOnceEvenIfItsProfileWasUnderEditBefore)
{
    const AppProfile editor{u"com.example.editor"_qs, u"Editor"_qs, u"com.example.editor"_qs, u"app.fill"_qs};
    customise(AppProfile::global(), FKey::f1, u"global"_qs);
    profile().setCurrentProfile(editor);
    profile().setConfig(typing(u"editor"_qs), FKey::f1);
    bringToFront({editor.id});
    EXPECT_EQ(typed(FKey::f1), u"global") << "not listed yet, the profile is but the last level";
    profile().addAppProfile(editor.name, editor.id, editor.iconName);
    EXPECT_EQ(typed(FKey::f1), u"editor");
}

TEST_F(RuntimeResolutionTest, identifiersAreComparedExactly)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    for (const QString& other :
        {u"com.apple.safari"_qs, u"com.apple.Safari "_qs, u"com.apple.SafariX"_qs, u"safari"_qs}) {
        bringToFront({other});
        EXPECT_EQ(typed(FKey::f1), QString()) << testing::PrintToString(other);
    }
}

TEST_F(RuntimeResolutionTest, anApplicationAnswersToItsOwnIdentifierBeforeThoseOfItsRoles)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    customise(AppProfile::safari(), FKey::f2, u"safari"_qs);
    profile().addAppProfile(u"Browser"_qs, u"org.example.browser"_qs, u"app.fill"_qs);
    profile().setConfig(typing(u"browser"_qs), FKey::f1);
    profile().setCurrentProfile(AppProfile::global());

    bringToFront({u"org.example.browser"_qs, u"com.apple.Safari"_qs});
    EXPECT_EQ(profile().cachedFrontmostBundleId(), u"org.example.browser"_qs);
    EXPECT_EQ(typed(FKey::f1), u"browser");
    EXPECT_EQ(typed(FKey::f2), u"safari") << "a role's profile fills what the own one leaves open";
}

TEST_F(RuntimeResolutionTest, theFrontApplicationOfTheLaunchCounts)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    quit();
    bringSafariToFront();
    EXPECT_EQ(profile().cachedFrontmostBundleId(), u"com.apple.Safari"_qs);
    EXPECT_EQ(typed(FKey::f1), u"safari");
}

TEST_F(RuntimeResolutionTest, aKnownFrontApplicationIsNotAskedForAgain)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    bringSafariToFront();
    const RunningApplication terminal = application({u"com.apple.Terminal"_qs});
    desktop.workspace().setApplication(terminal);
    desktop.workspace().setFrontmostSilently(terminal.processIdentifier);
    EXPECT_EQ(typed(FKey::f1), u"safari");
}

TEST_F(RuntimeResolutionTest, anUnknownFrontApplicationIsAskedForAtEachQuery)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    customise(AppProfile::global(), FKey::f2, u"global"_qs);
    ASSERT_EQ(profile().cachedFrontmostBundleId(), std::nullopt);
    EXPECT_EQ(typed(FKey::f1), QString());

    const RunningApplication safari = application({u"com.apple.Safari"_qs});
    desktop.workspace().setApplication(safari);
    desktop.workspace().setFrontmostSilently(safari.processIdentifier);
    EXPECT_EQ(typed(FKey::f1), u"safari");
    EXPECT_EQ(typed(FKey::f2), u"global");
    EXPECT_EQ(profile().customKeys(), (FKeySet{FKey::f1, FKey::f2}));
    EXPECT_EQ(profile().cachedFrontmostBundleId(), std::nullopt) << "an answer to a query is not kept";

    profile().setFunctionKeysEnabled(false);
    EXPECT_EQ(typed(FKey::f1), QString());
    profile().setFunctionKeysEnabled(true);

    desktop.workspace().setFrontmostSilently(std::nullopt);
    EXPECT_EQ(typed(FKey::f1), QString());
    EXPECT_EQ(typed(FKey::f2), u"global");
}

TEST_F(RuntimeResolutionTest, anActivationThatDoesNotTellWhichApplicationAsksThePlatform)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    bringTerminalToFront();
    const RunningApplication safari = application({u"com.apple.Safari"_qs});
    desktop.workspace().setApplication(safari);
    desktop.workspace().setFrontmostSilently(safari.processIdentifier);

    desktop.workspace().announceActivation(std::nullopt);
    EXPECT_EQ(profile().cachedFrontmostBundleId(), u"com.apple.Safari"_qs);
    EXPECT_EQ(typed(FKey::f1), u"safari");
}

TEST_F(RuntimeResolutionTest, anActivationOfAnApplicationWithoutIdentifierAsksThePlatformToo)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    bringTerminalToFront();
    const RunningApplication safari = application({u"com.apple.Safari"_qs});
    desktop.workspace().setApplication(safari);
    desktop.workspace().setFrontmostSilently(safari.processIdentifier);

    desktop.workspace().announceActivation(application({}));
    EXPECT_EQ(profile().cachedFrontmostBundleId(), u"com.apple.Safari"_qs);
}

TEST_F(RuntimeResolutionTest, theAnnouncedApplicationCountsBeforeWhatThePlatformWouldAnswer)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    bringTerminalToFront();
    desktop.workspace().announceActivation(application({u"com.apple.Safari"_qs}));
    EXPECT_EQ(typed(FKey::f1), u"safari");
}

TEST_F(RuntimeResolutionTest, nothingIsHeardAfterTheEnd)
{
    static_cast<void>(profile());
    quit();
    bringSafariToFront();
    SUCCEED() << "the sanitizers would tell";
}

TEST_F(RuntimeResolutionTest, everyChangeThatDecidesShowsAtOnce)
{
    bringSafariToFront();
    profile().setConfig(typing(u"a"_qs), FKey::f1);
    EXPECT_EQ(typed(FKey::f1), u"a");
    profile().setConfig(typing(u"b"_qs), FKey::f1);
    EXPECT_EQ(typed(FKey::f1), u"b");
    profile().setAction(KeyAction::copy, FKey::f1);
    EXPECT_EQ(profile().runtimeCustomAction(FKey::f1), KeyAction::copy);
    profile().resetToDefault(FKey::f1);
    EXPECT_EQ(profile().runtimeCustomConfig(FKey::f1), nullptr);
    profile().setConfig(typing(u"c"_qs), FKey::f1);
    profile().resetCurrentProfileToDefaults();
    EXPECT_EQ(profile().runtimeCustomConfig(FKey::f1), nullptr);
    profile().setConfig(typing(u"d"_qs), FKey::f1);
    profile().resetAllProfilesToDefaults();
    EXPECT_EQ(profile().runtimeCustomConfig(FKey::f1), nullptr);
}

TEST_F(RuntimeResolutionTest, theSetOfCustomKeysIsAnnouncedWhenItChangesAndOnlyThen)
{
    std::vector<FKeySet> announced;
    QObject::connect(&profile(), &KeyProfile::customKeysChanged, &profile(), [&](FKeySet keys) {
        announced.push_back(keys);
        EXPECT_EQ(profile().customKeys(), keys);
    });
    bringTerminalToFront();
    profile().setConfig(typing(u"a"_qs), FKey::f1);
    profile().setConfig(typing(u"b"_qs), FKey::f1); // another record, the same keys
    profile().setConfig(typing(u"c"_qs), FKey::capsLock);
    profile().setFunctionKeysEnabled(false);
    profile().setFunctionKeysEnabled(false);
    profile().setFunctionKeysEnabled(true);
    profile().setCurrentProfile(AppProfile::safari());
    profile().setConfig(typing(u"d"_qs), FKey::f2);
    profile().setCurrentProfile(AppProfile::global());
    bringSafariToFront();
    profile().resetAllProfilesToDefaults();

    const FKeySet f1{FKey::f1};
    const FKeySet both{FKey::f1, FKey::capsLock};
    const FKeySet capsLock{FKey::capsLock};
    const FKeySet three{FKey::f1, FKey::f2, FKey::capsLock};
    EXPECT_EQ(announced, (std::vector{f1, both, capsLock, both, three, both, three, FKeySet()}));
}

TEST_F(RuntimeResolutionTest, theCountsTellFunctionKeysFromOthers)
{
    for (const FKey key : {FKey::f1, FKey::f12, FKey::capsLock, FKey::section, FKey::f13})
        profile().setConfig(typing(u"a"_qs), key);
    EXPECT_EQ(profile().customizedFunctionKeysCount(), 2);
    EXPECT_EQ(profile().customizedOtherKeysCount(), 3);
    EXPECT_EQ(profile().totalCustomizedKeysCount(), 5);
    profile().setCurrentProfile(AppProfile::safari());
    EXPECT_EQ(profile().customizedFunctionKeysCount(), 0);
    EXPECT_EQ(profile().customizedOtherKeysCount(), 0);
    EXPECT_EQ(profile().totalCustomizedKeysCount(), 0);
}

TEST_F(RuntimeResolutionTest, onlyTheTotalCountsARecordThatIsNotCustom)
{
    stageMain(R"({"global": {"F1": "brightness_down", "F2": "copy", "F13": "unassigned", "F14": "copy"}})");
    EXPECT_EQ(profile().totalCustomizedKeysCount(), 4);
    EXPECT_EQ(profile().customizedFunctionKeysCount(), 1);
    EXPECT_EQ(profile().customizedOtherKeysCount(), 1);
    EXPECT_FALSE(profile().isCustomized(FKey::f1));
    EXPECT_TRUE(profile().isCustomized(FKey::f2));
    EXPECT_FALSE(profile().isCustomized(FKey::f3));
}

TEST_F(RuntimeResolutionTest, aKeyWithoutRecordShowsTheFactoryActionInTheEditor)
{
    EXPECT_EQ(profile().actionConfig(FKey::f13), ConfiguredAction(KeyAction::unassigned));
    for (const FKey key : allFKeys) {
        EXPECT_EQ(profile().actionConfig(key), ConfiguredAction(defaultAction(key)));
        EXPECT_EQ(profile().actionInEditor(key), defaultAction(key));
        EXPECT_FALSE(profile().isCustomized(key));
    }
}

TEST_F(RuntimeResolutionTest, theEditorSeesTheCurrentProfileWhateverIsInFront)
{
    customise(AppProfile::safari(), FKey::f1, u"safari"_qs);
    customise(AppProfile::global(), FKey::f1, u"global"_qs);
    bringSafariToFront();
    EXPECT_EQ(profile().actionConfig(FKey::f1), typing(u"global"_qs));
    profile().setInterceptionEnabled(false);
    EXPECT_EQ(profile().actionConfig(FKey::f1), typing(u"global"_qs));
}

} // namespace

} // namespace tarvin
