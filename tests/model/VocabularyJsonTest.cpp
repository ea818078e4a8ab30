#include "model/VocabularyJson.h"

#include "model/JsonText.h"
#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

TEST(VocabularyJson, everyKeyIsItsStoredName)
{
    EXPECT_EQ(toJson(FKey::rightCommand), json(R"("RightCommand")"));
    for (const FKey key : allFKeys)
        EXPECT_EQ(fKeyFromJson(throughText(toJson(key))), key);
}

TEST(VocabularyJson, everyActionIsItsStoredName)
{
    EXPECT_EQ(toJson(KeyAction::forwardDelete), json(R"("delete")"));
    for (const KeyAction action : allKeyActions)
        EXPECT_EQ(keyActionFromJson(throughText(toJson(action))), action);
}

TEST(VocabularyJson, everyCategoryIsItsHeading)
{
    EXPECT_EQ(toJson(ActionCategory::windowSnapping), json(R"("WINDOW MANAGEMENT")"));
    for (const ActionCategory category : allActionCategories)
        EXPECT_EQ(actionCategoryFromJson(throughText(toJson(category))), category);
}

TEST(VocabularyJson, anythingElseIsAbsentAndNoDefault)
{
    for (const char* text : {R"("f1")", R"("F20")", R"("")", "null", "true", "1", "[\"F1\"]", "{}"}) {
        EXPECT_EQ(fKeyFromJson(json(text)), std::nullopt) << text;
        EXPECT_EQ(keyActionFromJson(json(text)), std::nullopt) << text;
        EXPECT_EQ(actionCategoryFromJson(json(text)), std::nullopt) << text;
    }
    EXPECT_EQ(fKeyFromJson(QJsonValue(QJsonValue::Undefined)), std::nullopt);
}

} // namespace

} // namespace tarvin
