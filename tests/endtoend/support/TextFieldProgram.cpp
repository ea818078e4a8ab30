// An application with nothing but a text field, for tests to type into, copy from and paste into. What it holds is in a
// file at any time: tarvin-text-field NAME FILE.

#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>

#include <cstdio>

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 3) {
        std::fprintf(stderr, "usage: tarvin-text-field NAME FILE\n");
        return 2;
    }
    const QApplication application(argumentCount, arguments);
    const QString name = QString::fromLocal8Bit(arguments[1]);
    const QString path = QString::fromLocal8Bit(arguments[2]);
    QApplication::setApplicationName(name); // its windows get it as their class
    QPlainTextEdit field;
    const auto write = [&field, &path] {
        QFile file(path);
        if (file.open(QFile::WriteOnly))
            file.write(field.toPlainText().toUtf8());
    };
    QObject::connect(&field, &QPlainTextEdit::textChanged, &field, write);
    write();
    field.setWindowTitle(name);
    field.setGeometry(30, 30, 300, 200);
    field.show();
    return QApplication::exec();
}
