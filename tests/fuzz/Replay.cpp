// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Runs a fuzz target without libFuzzer: each file of a folder, and then variants of them.
//
//     fuzz_TARGET FOLDER VARIANTS
//
// The variants are the same in every run. Prints how many inputs were run.

#include "tests/fuzz/Fuzz.h"

#include <QDir>
#include <QFile>
#include <QVector>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

QByteArray read(const QString &path)
{
    QFile file(path);
    fuzz::check(file.open(QIODevice::ReadOnly), "a file of the corpus can be read");
    return file.readAll();
}

class Variants
{
public:
    explicit Variants(const QVector<QByteArray> &corpus)
        : m_corpus(corpus)
    {
    }

    QByteArray next()
    {
        QByteArray input = m_corpus[below(m_corpus.size())];
        for (int changes = 1 + below(4); changes > 0; --changes)
            change(input);
        return input;
    }

private:
    // A number from 0 to `limit` - 1; 0 for a limit of 0.
    int below(int limit) { return limit > 0 ? static_cast<int>(m_random() % unsigned(limit)) : 0; }

    void change(QByteArray &input)
    {
        const int place = below(input.size() + 1);
        const QByteArray &other = m_corpus[below(m_corpus.size())];
        switch (below(6)) {
        case 0:
            input.insert(place, static_cast<char>(below(256)));
            break;
        case 1:
            input.remove(place, 1 + below(16));
            break;
        case 2:
            if (place < input.size())
                input[place] = static_cast<char>(below(256));
            break;
        case 3:
            input.insert(place, other.mid(below(other.size()), 1 + below(64)));
            break;
        case 4:
            input.truncate(place);
            break;
        default:
            if (place < input.size())
                input[place] = static_cast<char>(input[place] ^ (1 << below(8)));
        }
    }

    const QVector<QByteArray> &m_corpus;
    std::mt19937 m_random; // with the seed that every program has
};

void run(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: fuzz_TARGET FOLDER VARIANTS\n", stderr);
        return 2;
    }
    QVector<QByteArray> corpus;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names)
        corpus.append(read(folder.filePath(name)));
    fuzz::check(!corpus.isEmpty(), "the folder holds a corpus");

    for (const QByteArray &input : corpus)
        run(input);
    run({});
    Variants variants(corpus);
    const int count = std::atoi(argv[2]);
    for (int i = 0; i < count; ++i)
        run(variants.next());
    std::printf("%d inputs\n", static_cast<int>(corpus.size()) + 1 + count);
    return 0;
}
