#pragma once

#include "platform/ports/Pasteboard.h"

#include <gtest/gtest.h>

namespace tarvin::contracts {

/// What every platform's clipboard promises. A platform under test has `pasteboard()` and `until(condition)`; one that
/// may be missing has `lack()`, which says why. The content of a real clipboard is put back afterwards, as far as it is
/// text.
template <typename Tested> class PasteboardContract : public testing::Test
{
protected:
    void SetUp() override
    {
        if constexpr (requires { Tested::lack(); }) {
            if (const auto lack = Tested::lack())
                GTEST_SKIP() << *lack;
        }
        m_before = read();
    }
    void TearDown() override
    {
        if (m_before)
            pasteboard.setText(*m_before);
    }

    [[nodiscard]] std::optional<PasteboardText> read()
    {
        std::optional<PasteboardText> text;
        bool isAnswered = false;
        pasteboard.readText([&](std::optional<PasteboardText> answer) {
            text = std::move(answer);
            isAnswered = true;
        });
        EXPECT_TRUE(tested.until([&] { return isAnswered; }));
        return text;
    }

    Tested tested;
    Pasteboard& pasteboard = tested.pasteboard();

private:
    std::optional<PasteboardText> m_before;
};

TYPED_TEST_SUITE_P(PasteboardContract);

TYPED_TEST_P(PasteboardContract, aTextIsReadAsItWasSet)
{
    for (const char16_t* text : {u"plain", u"two\nlines\r\n", u"  blanks  ", u"Müde 日本 \U0001F600", u""}) {
        this->pasteboard.setText({.text = QString::fromUtf16(text)});
        EXPECT_EQ(this->read(), (PasteboardText{.text = QString::fromUtf16(text)}))
            << QString::fromUtf16(text).toStdString();
    }
}

TYPED_TEST_P(PasteboardContract, aSecretKeepsItsMark)
{
    this->pasteboard.setText({.text = QStringLiteral("secret"), .isSecret = true});
    EXPECT_EQ(this->read(), (PasteboardText{.text = QStringLiteral("secret"), .isSecret = true}));
    this->pasteboard.setText({.text = QStringLiteral("open")});
    EXPECT_EQ(this->read(), (PasteboardText{.text = QStringLiteral("open"), .isSecret = false}));
}

TYPED_TEST_P(PasteboardContract, everyChangeIsCountedBeforeItReturns)
{
    const std::int64_t before = this->pasteboard.changeCount();
    this->pasteboard.setText({.text = QStringLiteral("one")});
    const std::int64_t first = this->pasteboard.changeCount();
    EXPECT_GT(first, before);
    this->pasteboard.setText({.text = QStringLiteral("one")});
    EXPECT_GT(this->pasteboard.changeCount(), first) << "the same text again";
}

TYPED_TEST_P(PasteboardContract, readingChangesNothing)
{
    this->pasteboard.setText({.text = QStringLiteral("one")});
    const std::int64_t count = this->pasteboard.changeCount();
    EXPECT_EQ(this->read(), (PasteboardText{.text = QStringLiteral("one")}));
    EXPECT_EQ(this->read(), (PasteboardText{.text = QStringLiteral("one")}));
    EXPECT_EQ(this->pasteboard.changeCount(), count);
}

REGISTER_TYPED_TEST_SUITE_P(PasteboardContract, aTextIsReadAsItWasSet, aSecretKeepsItsMark,
    everyChangeIsCountedBeforeItReturns, readingChangesNothing);

} // namespace tarvin::contracts
