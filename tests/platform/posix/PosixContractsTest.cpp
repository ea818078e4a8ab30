#include "platform/contracts/StoresContract.h"
#include "platform/posix/JsonPreferences.h"
#include "platform/posix/PosixFiles.h"

#include <QTemporaryDir>

namespace tarvin::contracts {

namespace {

class PosixStores
{
public:
    Files& files() { return m_files; }
    Preferences& preferences() { return m_preferences; }

private:
    QTemporaryDir m_disk;
    posix::PosixFiles m_files{m_disk.path() % u"/data/Tarvin"};
    posix::JsonPreferences m_preferences{m_files, m_disk.path() % u"/config/Tarvin/settings.json",
        [](const QString& line) { FAIL() << line.toStdString(); }};
};

using Platforms = testing::Types<PosixStores>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Posix, FilesContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Posix, PreferencesContract, Platforms);

} // namespace tarvin::contracts
