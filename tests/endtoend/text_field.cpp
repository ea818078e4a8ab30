// A window with one text field: a real application to type and paste into. Says "shown" when it has the keyboard and
// "text TEXT" at each change.

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include <cstdio>

int main(int count, char** arguments)
{
    const QApplication application(count, arguments);
    QLineEdit field;
    field.setWindowTitle(QStringLiteral("text field"));
    QObject::connect(&field, &QLineEdit::textChanged, [](const QString& text) {
        std::printf("text %s\n", text.toUtf8().constData());
        std::fflush(stdout);
    });
    QObject::connect(&application, &QApplication::focusChanged, [](QWidget*, const QWidget* now) {
        if (now) {
            std::puts("shown");
            std::fflush(stdout);
        }
    });
    field.resize(400, 40);
    field.show();
    return QApplication::exec();
}
