#pragma once

#include "platform/linux/desktop/QtScheduler.h"
#include "platform/linux/services/AnswerWatch.h"
#include "platform/linux/services/Buses.h"

#include "endtoend/support/Patience.h"
#include "platform/linux/services/support/MockService.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <mutex>

namespace tarvin::services {

using endtoend::eventually;
using endtoend::MockService;
using endtoend::PrivateBus;

/// Two buses of one's own that stand for the session's and the system's.
class ServicesOnBus : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = MockService::lack())
            GTEST_SKIP() << *lack;
        sessionBus = std::make_unique<PrivateBus>();
        systemBus = std::make_unique<PrivateBus>();
        buses = {.session = [this] { return sessionBus->connection(); },
            .system = [this] { return systemBus->connection(); }};
        tell = [this](const QString& text) {
            const std::lock_guard lock(m_mutex);
            m_told += text;
        };
        answers = std::make_unique<AnswerWatch>(tell);
    }

    void TearDown() override
    {
        EXPECT_TRUE(scheduler.shutDown(endtoend::patience));
        // What has been posted runs while those it is meant for are still there.
        QCoreApplication::processEvents();
    }

    /// What the user has read.
    [[nodiscard]] QStringList told()
    {
        const std::lock_guard lock(m_mutex);
        return m_told;
    }

    [[nodiscard]] bool tells(const char* text)
    {
        const bool isTold = eventually([&] { return told().contains(QString::fromUtf8(text)); });
        EXPECT_TRUE(isTold) << told().join(u'|').toStdString();
        return isTold;
    }

    /// A bus that is not there.
    [[nodiscard]] static QDBusConnection noBus() { return QDBusConnection(QStringLiteral("no such bus")); }

    /// As the port does it: on a background thread.
    void inBackground(const std::function<void()>& task)
    {
        std::atomic<bool> isDone = false;
        scheduler.runInBackground(BackgroundQueue::userInitiated, [&] {
            task();
            isDone = true;
        });
        ASSERT_TRUE(eventually([&] { return isDone.load(); }));
    }

    [[nodiscard]] std::unique_ptr<MockService> loginSession() const
    {
        return std::make_unique<MockService>(*systemBus, "org.freedesktop.login1",
            "/org/freedesktop/login1/session/auto", "org.freedesktop.login1.Session");
    }

    [[nodiscard]] std::unique_ptr<MockService> loginManager() const
    {
        return std::make_unique<MockService>(
            *systemBus, "org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager");
    }

    desktop::QtScheduler scheduler;
    std::unique_ptr<PrivateBus> sessionBus;
    std::unique_ptr<PrivateBus> systemBus;
    Buses buses;
    TellUser tell;
    std::unique_ptr<AnswerWatch> answers;

private:
    std::mutex m_mutex;
    QStringList m_told;
};

} // namespace tarvin::services
