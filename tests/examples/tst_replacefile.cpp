// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/ReplaceFile.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class ReplaceFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("drawing")); }
    [[nodiscard]] QByteArray contents() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] bool put(const QByteArray &bytes) const
    {
        QFile file(path());
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void allIsWritten()
    {
        QString error;
        QVERIFY2(replaceFile(path(), "new", &error), qPrintable(error));
        QCOMPARE(contents(), QByteArray("new"));
        QVERIFY2(replaceFile(path(), "other", &error), qPrintable(error));
        QCOMPARE(contents(), QByteArray("other"));
        QVERIFY2(replaceFile(path(), {}, &error), qPrintable(error));
        QVERIFY(contents().isEmpty());
        QVERIFY(error.isEmpty());
    }

    void aDiskWithTooLittleRoomKeepsTheOldFile_data()
    {
        QTest::addColumn<int>("size");
        // The last part of a file, up to 16 KiB, stays in a buffer until the end.
        for (const int size : {1, 475, 5873, 16384, 16385, 40000})
            QTest::newRow(qPrintable(QString::number(size))) << size;
    }
    void aDiskWithTooLittleRoomKeepsTheOldFile()
    {
        QFETCH(int, size);
        const QByteArray fresh(size, 'x');
        QVERIFY(put("old"));
        for (const int room : {0, 1, size / 2, size - 2, size - 1}) {
            if (room < 0 || room >= size)
                continue;
            QString error;
            bool written = false;
            {
                const tests::FileSizeLimit disk(room);
                written = replaceFile(path(), fresh, &error);
            }
            QVERIFY2(!written, qPrintable(QString::number(room)));
            QVERIFY(!error.isEmpty());
            QCOMPARE(contents(), QByteArray("old"));
            QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files).size(), 1);
        }
        const tests::FileSizeLimit disk(size);
        QString error;
        QVERIFY2(replaceFile(path(), fresh, &error), qPrintable(error));
        QCOMPARE(contents(), fresh);
    }

    void aFolderIsNotReplaced()
    {
        QString error;
        QVERIFY(!replaceFile(m_folder.path(), "new", &error));
        QVERIFY(!error.isEmpty());
    }
};

QTEST_MAIN(ReplaceFileTest)
#include "tst_replacefile.moc"
