#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

/// Reads every message box that comes up in the program, writes its text to a file, one box after
/// the other, and presses its button.
class Reader : public QObject {
    Q_OBJECT
public:
    explicit Reader(const QString& file)
        : m_file(file)
    {
        connect(&m_timer, &QTimer::timeout, this, &Reader::look);
        m_timer.start(0);
    }

private:
    void look()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible())
            return;
        QFile file(m_file);
        if (file.open(QIODevice::Append))
            file.write(QStringLiteral("%1|%2|%3|%4\n")
                           .arg(box->windowTitle(), box->text().replace(u'\n', u' '),
                                box->informativeText(), box->button(QMessageBox::Ok)->text())
                           .toUtf8());
        box->button(QMessageBox::Ok)->click();
    }

    QString m_file;
    QTimer m_timer;
};

class ClickingUser : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "clickinguser.json")
public:
    /// parameters: the file to write to.
    QObject* create(const QString& name, const QString& parameters) override
    {
        return name == QLatin1String("clickinguser") ? new Reader(parameters) : nullptr;
    }
};

} // namespace

#include "ClickingUser.moc"
