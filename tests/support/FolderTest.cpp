// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/support/FolderTest.h"

#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace tests {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(kNoFile);
}

bool writeFile(const QString &path, const QByteArray &content)
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

void FolderTest::write(const QString &path, const QByteArray &content) const
{
    QVERIFY2(writeFile(path, content), qPrintable(path));
}

void FolderTest::useAsHome() const
{
    for (const char *name : {"HOME", "XDG_CONFIG_HOME"})
        QVERIFY(qputenv(name, QFile::encodeName(m_folder->path())));
}

void FolderTest::initTestCase()
{
    failOnWarnings();
}

void FolderTest::init()
{
    resetWarnings();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void FolderTest::cleanup()
{
    m_folder.reset();
    QVERIFY2(warnings().isEmpty(), qPrintable(warnings()));
}

} // namespace tests
