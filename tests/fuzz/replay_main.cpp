// SPDX-License-Identifier: MIT

// Runs every input of a corpus once through a fuzz target, where there is no libFuzzer: one directory is the argument.
#include "fuzz_target.h"

#include <QDir>
#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void replay(const QByteArray& input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s CORPUS_DIRECTORY\n", argv[0]);
        return 2;
    }
    const QDir corpus(QFile::decodeName(argv[1]));
    const QStringList names = corpus.entryList(QDir::Files, QDir::Name);
    LLVMFuzzerInitialize(&argc, &argv);
    replay(QByteArray());
    for (const QString& name : names) {
        QFile file(corpus.filePath(name));
        FUZZ_CHECK(file.open(QIODevice::ReadOnly));
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        replay(file.readAll());
    }
    std::printf("%d inputs\n", int(names.size()) + 1);
    return names.isEmpty() ? 1 : 0;
}
