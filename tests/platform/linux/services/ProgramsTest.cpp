#include "platform/linux/services/Programs.h"

#include "endtoend/support/ChildProcess.h"
#include "endtoend/support/Patience.h"

#include <QFile>
#include <QTemporaryDir>

namespace tarvin::services {

using endtoend::ChildProcess;
using endtoend::eventually;

TEST(Programs, aProgramRunsFromItsStartToItsEnd)
{
    // The name is longer than the kernel keeps.
    const QTemporaryDir folder;
    const QString program = folder.filePath(QStringLiteral("tarvin-test-sleeper"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/bin/sleep"), program));
    EXPECT_FALSE(isProgramRunning(u"tarvin-test-sleeper"));
    auto sleeper = std::make_unique<ChildProcess>(std::vector<std::string>{program.toStdString(), "60"});
    EXPECT_TRUE(eventually([] { return isProgramRunning(u"tarvin-test-sleeper"); }));
    sleeper.reset();
    EXPECT_FALSE(isProgramRunning(u"tarvin-test-sleeper"));
}

TEST(Programs, aProgramThatIsNotInstalledIsNotStarted)
{
    EXPECT_FALSE(startProgram(QStringLiteral("nobody-has-such-a-name"), {}));
    EXPECT_TRUE(startProgram(QStringLiteral("true"), {}));
}

} // namespace tarvin::services
