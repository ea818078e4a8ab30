#include "platform/linux/pasteboard/SelectionPasteboard.h"

#include "endtoend/support/MainQueue.h"
#include "endtoend/support/XServer.h"
#include "platform/linux/pasteboard/support/ScriptedOwner.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

namespace tarvin::pasteboard {
namespace {

using namespace std::chrono_literals;
using test::ownerInPieces;
using test::ownerOf;
using test::ScriptedOwner;
using Clock = std::chrono::steady_clock;

class SelectionPasteboardTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (!endtoend::XServer::lack(endtoend::XServer::Kind::virtualFramebuffer))
            s_server = std::make_unique<endtoend::XServer>();
    }
    static void TearDownTestSuite() { s_server.reset(); }
    void SetUp() override
    {
        if (const auto lack = endtoend::XServer::lack(endtoend::XServer::Kind::virtualFramebuffer))
            GTEST_SKIP() << *lack;
        m_pasteboard = std::make_unique<SelectionPasteboard>(m_queue, QByteArray::fromStdString(s_server->display()));
        (void)m_pasteboard->changeCount();
    }

    [[nodiscard]] std::unique_ptr<ScriptedOwner> copy(ScriptedOwner::Behaviour behaviour)
    {
        const std::int64_t before = m_pasteboard->changeCount();
        auto owner = std::make_unique<ScriptedOwner>(s_server->display(), std::move(behaviour));
        EXPECT_TRUE(m_queue.runUntil([&] { return m_pasteboard->changeCount() > before; }));
        return owner;
    }
    /// What a reading hands over; `calls` counts how often it did.
    std::optional<PasteboardText> read(std::chrono::milliseconds limit = endtoend::patience)
    {
        std::optional<PasteboardText> result;
        int calls = 0;
        m_pasteboard->readText([&](const std::optional<PasteboardText>& text) {
            result = text;
            ++calls;
        });
        EXPECT_TRUE(m_queue.runUntil([&calls] { return calls > 0; }, limit)) << "nothing came";
        return result;
    }
    /// How long a reading of something bad takes; it comes to nothing.
    std::chrono::milliseconds timeOfFailure()
    {
        const auto begin = Clock::now();
        EXPECT_EQ(read(), std::nullopt);
        return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin);
    }
    /// The text is on the clipboard, and other applications know, when this returns.
    /// @return how long the caller of the pasteboard was held
    Clock::duration set(const PasteboardText& text)
    {
        const SelectionPasteboard other(m_queue, QByteArray::fromStdString(s_server->display()));
        const std::int64_t before = other.changeCount();
        const auto begin = Clock::now();
        m_pasteboard->setText(text);
        const Clock::duration held = Clock::now() - begin;
        EXPECT_TRUE(m_queue.runUntil([&] { return other.changeCount() > before; }));
        return held;
    }
    /// What another pasteboard, that is another application, reads.
    std::optional<PasteboardText> readElsewhere()
    {
        SelectionPasteboard other(m_queue, QByteArray::fromStdString(s_server->display()));
        std::optional<PasteboardText> result;
        bool isCalled = false;
        other.readText([&](const std::optional<PasteboardText>& text) {
            result = text;
            isCalled = true;
        });
        EXPECT_TRUE(m_queue.runUntil([&isCalled] { return isCalled; }));
        return result;
    }
    static PasteboardText plain(const QString& text) { return {.text = text}; }

    static std::unique_ptr<endtoend::XServer> s_server;
    endtoend::MainQueue m_queue;
    std::unique_ptr<SelectionPasteboard> m_pasteboard;
};

std::unique_ptr<endtoend::XServer> SelectionPasteboardTest::s_server;

TEST_F(SelectionPasteboardTest, eachCopyingByAnotherApplicationCounts)
{
    const std::int64_t before = m_pasteboard->changeCount();
    const auto first = copy(ownerOf("a"));
    EXPECT_EQ(m_pasteboard->changeCount(), before + 1);
    const auto second = copy(ownerOf("a"));
    EXPECT_EQ(m_pasteboard->changeCount(), before + 2);
}

TEST_F(SelectionPasteboardTest, ourOwnTextCountsOnceAndAtOnce)
{
    const std::int64_t before = m_pasteboard->changeCount();
    m_pasteboard->setText(plain(u"ours"_qs));
    EXPECT_EQ(m_pasteboard->changeCount(), before + 1);
    EXPECT_EQ(read(), plain(u"ours"_qs));
    EXPECT_TRUE(m_queue.runUntil([this] { return readElsewhere() == plain(u"ours"_qs); }));
    m_queue.runFor(50ms);
    EXPECT_EQ(m_pasteboard->changeCount(), before + 1);
}

TEST_F(SelectionPasteboardTest, aTextIsReadAsItWasCopied)
{
    const auto owner = copy(ownerOf(" Grüße, 世界 👍\n"));
    EXPECT_EQ(read(), plain(u" Grüße, 世界 👍\n"_qs));
}

TEST_F(SelectionPasteboardTest, anEmptyTextIsAText)
{
    const auto owner = copy(ownerOf(""));
    EXPECT_EQ(read(), plain(QString()));
}

TEST_F(SelectionPasteboardTest, aLatinTextIsUnderstood)
{
    const auto owner = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        if (self.asksFor(request, "TARGETS"))
            self.putNumbers(request, "ATOM", {self.atom("STRING")});
        else
            self.put(request, "STRING", "caf\xe9");
        self.answer(request);
    });
    EXPECT_EQ(read(), plain(u"café"_qs));
}

TEST_F(SelectionPasteboardTest, plainTextOfUnknownEncodingIsGuessed)
{
    QByteArray bytes = "café";
    const auto owner = copy([&bytes](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        if (self.asksFor(request, "TARGETS"))
            self.putNumbers(request, "ATOM", {self.atom("text/plain")});
        else
            self.put(request, "text/plain", bytes);
        self.answer(request);
    });
    EXPECT_EQ(read(), plain(u"café"_qs));
    bytes = "caf\xe9";
    EXPECT_EQ(read(), plain(u"café"_qs));
}

TEST_F(SelectionPasteboardTest, anOwnerThatCannotTellItsFormsIsAskedForTextAllTheSame)
{
    const auto owner = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        const bool isText = self.asksFor(request, "UTF8_STRING");
        if (isText)
            self.put(request, "UTF8_STRING", "old school");
        self.answer(request, isText);
    });
    EXPECT_EQ(read(), plain(u"old school"_qs));
}

TEST_F(SelectionPasteboardTest, anImageHasNoText)
{
    const auto owner = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        const bool asksForForms = self.asksFor(request, "TARGETS");
        if (asksForForms)
            self.putNumbers(request, "ATOM", {self.atom("TARGETS"), self.atom("image/png")});
        self.answer(request, asksForForms);
    });
    EXPECT_EQ(read(), std::nullopt);
}

TEST_F(SelectionPasteboardTest, aTextInPiecesIsPutTogether)
{
    QByteArray text;
    for (int i = 0; i < 5000; ++i)
        text += "Zeile für Zeile " + QByteArray::number(i) + '\n';
    const auto owner = copy(ownerInPieces(text, 1001));
    EXPECT_EQ(read(), plain(QString::fromUtf8(text)));
}

TEST_F(SelectionPasteboardTest, piecesThatFillTheTextExactlyAreAllOfIt)
{
    const auto owner = copy(ownerInPieces(QByteArray(4000, 'x'), 1000));
    EXPECT_EQ(read(), plain(QString(4000, u'x')));
}

TEST_F(SelectionPasteboardTest, noPiecesAreAnEmptyText)
{
    const auto owner = copy(ownerInPieces({}, 1000));
    EXPECT_EQ(read(), plain(QString()));
}

TEST_F(SelectionPasteboardTest, fiftyMegabytesArriveWholeAndTheMainThreadNeverWaits)
{
    constexpr qsizetype size = 50'000'000;
    const auto owner = copy(ownerInPieces(QByteArray(size, 'x'), 1 << 20));
    std::optional<PasteboardText> result;
    bool isCalled = false;
    const auto begin = Clock::now();
    m_pasteboard->readText([&](const std::optional<PasteboardText>& text) {
        result = text;
        isCalled = true;
    });
    EXPECT_LT(Clock::now() - begin, 50ms);
    ASSERT_TRUE(m_queue.runUntil([&isCalled] { return isCalled; }, 30s));
    ASSERT_TRUE(result);
    EXPECT_EQ(result->text.size(), size);
    EXPECT_EQ(result->text, QString(size, u'x'));
}

TEST_F(SelectionPasteboardTest, ourOwnFiftyMegabytesReachAnotherApplication)
{
    const QString text(50'000'000, u'y');
    EXPECT_LT(set(plain(text)), 50ms);
    const std::optional<PasteboardText> got = readElsewhere();
    ASSERT_TRUE(got);
    EXPECT_TRUE(got->text == text);
}

TEST_F(SelectionPasteboardTest, aSecretIsToldAsSuch)
{
    const auto secretOwner = [](const QByteArray& hint) {
        return [hint](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
            if (self.asksFor(request, "TARGETS"))
                self.putNumbers(request, "ATOM", {self.atom("UTF8_STRING"), self.atom("x-kde-passwordManagerHint")});
            else if (self.asksFor(request, "x-kde-passwordManagerHint"))
                self.put(request, "x-kde-passwordManagerHint", hint);
            else
                self.put(request, "UTF8_STRING", "hunter2");
            self.answer(request);
        };
    };
    const auto owner = copy(secretOwner("secret"));
    EXPECT_EQ(read(), (PasteboardText{.text = u"hunter2"_qs, .isSecret = true}));
    const auto openOwner = copy(secretOwner("public"));
    EXPECT_EQ(read(), plain(u"hunter2"_qs));
}

TEST_F(SelectionPasteboardTest, aSecretPutBackKeepsItsMark)
{
    set({.text = u"hunter2"_qs, .isSecret = true});
    EXPECT_EQ(readElsewhere(), (PasteboardText{.text = u"hunter2"_qs, .isSecret = true}));
}

TEST_F(SelectionPasteboardTest, aSilentOwnerIsGivenUpAfterASecond)
{
    const auto owner = copy([](ScriptedOwner&, const xcb_selection_request_event_t&) {});
    const auto time = timeOfFailure();
    EXPECT_GE(time, 950ms);
    EXPECT_LT(time, 3s);
}

TEST_F(SelectionPasteboardTest, anOwnerThatFallsSilentAmidThePiecesIsGivenUp)
{
    const auto owner = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        if (self.asksFor(request, "TARGETS"))
            self.putNumbers(request, "ATOM", {self.atom("UTF8_STRING")});
        else
            self.putNumbers(request, "INCR", {1000000});
        self.answer(request);
    });
    EXPECT_LT(timeOfFailure(), 3s);
}

TEST_F(SelectionPasteboardTest, anOwnerThatDiesWhenAskedIsGivenUp)
{
    const auto owner = copy([](ScriptedOwner& self, const xcb_selection_request_event_t&) { self.disconnect(); });
    EXPECT_LT(timeOfFailure(), 3s);
}

TEST_F(SelectionPasteboardTest, anOwnerThatAnswersWithNonsenseIsNotBelieved)
{
    const auto numbersForText = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        self.putNumbers(request, "ATOM", {self.atom("UTF8_STRING")});
        self.answer(request);
    });
    EXPECT_LT(timeOfFailure(), 3s);
    const auto textForForms = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        if (self.asksFor(request, "TARGETS"))
            self.put(request, "UTF8_STRING", "I have everything");
        else
            self.put(request, "image/png", "PNG");
        self.answer(request);
    });
    EXPECT_LT(timeOfFailure(), 3s);
    const auto nothingPutThere =
        copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) { self.answer(request); });
    EXPECT_LT(timeOfFailure(), 3s);
}

TEST_F(SelectionPasteboardTest, anAnswerToAnotherQuestionIsNotTaken)
{
    const auto owner = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        xcb_selection_request_event_t other = request;
        other.target = self.atom("image/png");
        self.put(other, "UTF8_STRING", "wrong");
        self.answer(other);
    });
    EXPECT_GE(timeOfFailure(), 950ms);
}

TEST_F(SelectionPasteboardTest, aLateAnswerHarmsNoLaterReading)
{
    const auto slow = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        std::this_thread::sleep_for(1500ms);
        self.put(request, "UTF8_STRING", "late");
        self.answer(request);
    });
    EXPECT_EQ(read(), std::nullopt);
    const auto prompt = copy(ownerOf("prompt"));
    EXPECT_EQ(read(), plain(u"prompt"_qs));
    m_queue.runFor(700ms);
    EXPECT_EQ(read(), plain(u"prompt"_qs));
}

TEST_F(SelectionPasteboardTest, readingsAreAnsweredInTheirOrder)
{
    const auto owner = copy(ownerInPieces(QByteArray(100000, 'x'), 1000));
    QStringList order;
    m_pasteboard->readText([&order](const auto&) { order << u"first"_qs; });
    m_pasteboard->readText([&order](const auto&) { order << u"second"_qs; });
    EXPECT_TRUE(m_queue.runUntil([&order] { return order.size() == 2; }));
    EXPECT_EQ(order, (QStringList{u"first"_qs, u"second"_qs}));
}

TEST_F(SelectionPasteboardTest, aTextThatWasReadOutlivesItsApplication)
{
    auto owner = copy(ownerOf("kept"));
    EXPECT_EQ(read(), plain(u"kept"_qs));
    const std::int64_t before = m_pasteboard->changeCount();
    owner.reset();
    EXPECT_TRUE(m_queue.runUntil([this] { return readElsewhere() == plain(u"kept"_qs); }));
    EXPECT_EQ(m_pasteboard->changeCount(), before) << "the content is the same";
}

TEST_F(SelectionPasteboardTest, aTextThatNobodyReadGoesWithItsApplication)
{
    auto owner = copy(ownerOf("lost"));
    const std::int64_t before = m_pasteboard->changeCount();
    owner.reset();
    EXPECT_TRUE(m_queue.runUntil([&] { return m_pasteboard->changeCount() == before + 1; }));
    EXPECT_LT(timeOfFailure(), 500ms);
}

TEST_F(SelectionPasteboardTest, aSecretGoesWithItsApplication)
{
    auto owner = copy([](ScriptedOwner& self, const xcb_selection_request_event_t& request) {
        if (self.asksFor(request, "TARGETS"))
            self.putNumbers(request, "ATOM", {self.atom("UTF8_STRING"), self.atom("x-kde-passwordManagerHint")});
        else if (self.asksFor(request, "x-kde-passwordManagerHint"))
            self.put(request, "x-kde-passwordManagerHint", "secret");
        else
            self.put(request, "UTF8_STRING", "hunter2");
        self.answer(request);
    });
    ASSERT_TRUE(read());
    const std::int64_t before = m_pasteboard->changeCount();
    owner.reset();
    EXPECT_TRUE(m_queue.runUntil([&] { return m_pasteboard->changeCount() == before + 1; }));
    EXPECT_EQ(readElsewhere(), std::nullopt);
}

TEST_F(SelectionPasteboardTest, ourTextGivesWayToTheNextCopying)
{
    set(plain(u"ours"_qs));
    const auto owner = copy(ownerOf("theirs"));
    EXPECT_EQ(read(), plain(u"theirs"_qs));
    EXPECT_EQ(readElsewhere(), plain(u"theirs"_qs));
}

TEST_F(SelectionPasteboardTest, withoutAServerThereIsNothing)
{
    SelectionPasteboard lonely(m_queue, ":987");
    EXPECT_EQ(lonely.changeCount(), 0);
    bool isCalled = false;
    lonely.readText([&isCalled](const std::optional<PasteboardText>& text) {
        EXPECT_EQ(text, std::nullopt);
        isCalled = true;
    });
    EXPECT_TRUE(m_queue.runUntil([&isCalled] { return isCalled; }));
    lonely.setText(plain(u"a"_qs));
    EXPECT_EQ(lonely.changeCount(), 1);
}

TEST_F(SelectionPasteboardTest, nobodyIsCalledAfterItsEnd)
{
    const auto owner = copy(ownerOf("a"));
    bool isCalled = false;
    m_pasteboard->readText([&isCalled](const auto&) { isCalled = true; });
    m_pasteboard.reset();
    m_queue.runFor(100ms);
    EXPECT_FALSE(isCalled);
}

} // namespace
} // namespace tarvin::pasteboard
