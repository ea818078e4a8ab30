// Screens, monitors and the clipboard belong to an application of the system, which the toolkit makes.

#include <gmock/gmock.h>

#include <QGuiApplication>

int main(int count, char** arguments)
{
    testing::InitGoogleMock(&count, arguments);
    const QGuiApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
