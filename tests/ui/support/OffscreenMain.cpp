#include "ui/InterfaceStyle.h"

#include <QApplication>

#include <gmock/gmock.h>

/// Views are tested without a server: the toolkit draws into memory.
int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_SCALE_FACTOR");
    testing::InitGoogleMock(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    tarvin::InterfaceStyle::install();
    return RUN_ALL_TESTS();
}
