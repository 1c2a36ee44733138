#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// A Wayland desktop without a screen, with everything drawn in that scale.
class Desktop {
public:
    explicit Desktop(int scale) : m_socket(u"tomely-test-%1"_s.arg(scale))
    {
        m_server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_server.start(u"weston"_s,
            {u"--backend=headless-backend.so"_s, u"--socket="_s + m_socket, u"--idle-time=0"_s,
                u"--width=2600"_s, u"--height=1700"_s, u"--scale=%1"_s.arg(scale), u"--no-config"_s,
                u"--log=/dev/null"_s});
    }

    ~Desktop()
    {
        m_server.terminate();
        if (!m_server.waitForFinished())
            m_server.kill();
    }

    Q_DISABLE_COPY_MOVE(Desktop)

    const QString& socket() const { return m_socket; }

    bool isReady()
    {
        const QString place = qEnvironmentVariable("XDG_RUNTIME_DIR") + u'/' + m_socket;
        return m_server.waitForStarted()
            && QTest::qWaitFor([&place] { return QFile::exists(place); });
    }

private:
    QString m_socket;
    QProcess m_server;
};

} // namespace

// The program comes up on a Wayland desktop, without help from X, at the desktop's scale.
class RunsOnWayland : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsTheSampleLibrary_data();
    void showsTheSampleLibrary();

private:
    QSize m_size; // of the window at scale 1
};

void RunsOnWayland::showsTheSampleLibrary_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("1x") << 1;
    QTest::newRow("2x") << 2;
}

void RunsOnWayland::showsTheSampleLibrary()
{
    QFETCH(int, scale);
    Desktop desktop(scale);
    QVERIFY(desktop.isReady());
    const QTemporaryDir folder;
    const QString collection = folder.filePath(u"Classics.books"_s);
    const QString picture = folder.filePath(u"picture.png"_s);
    QVERIFY(QFile::copy(QStringLiteral(TOMELY_SOURCE_DIR "/samples/Classics.books"), collection));

    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"DISPLAY"_s);
    environment.insert(u"WAYLAND_DISPLAY"_s, desktop.socket());
    environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QStringLiteral(TOMELY_PROGRAM), {u"--picture"_s, picture, collection});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QString said = QString::fromUtf8(program.readAllStandardOutput());
    QVERIFY2(said.endsWith(" displayed\n"_L1), qPrintable(said));

    const QImage image(picture);
    QVERIFY(image.width() > 400 * scale && image.height() > 300 * scale);
    QVERIFY(image.convertToFormat(QImage::Format_Indexed8).colorCount() > 100);
    if (scale == 1)
        m_size = image.size();
    else
        QCOMPARE(image.size(), m_size * scale);
}

QTEST_GUILESS_MAIN(RunsOnWayland)
#include "RunsOnWayland.moc"
