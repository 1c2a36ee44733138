// Runs a fuzz target over files: replay-corpus FOLDER... What the fuzzer once found stays tested in
// every build, without a fuzzer.

#include <QDirIterator>
#include <QFile>
#include <QString>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char* argv[])
{
    int count = 0;
    for (int index = 1; index < argc; ++index) {
        QDirIterator files(QString::fromLocal8Bit(argv[index]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "%s cannot be read\n", qPrintable(file.fileName()));
                return 1;
            }
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                static_cast<std::size_t>(bytes.size()));
            ++count;
        }
    }
    std::printf("%d files\n", count);
    return count > 0 ? 0 : 1; // a corpus that is not found must not pass for one that holds
}
