// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Texts that are translated where they are read.

#include "host/files/Phrase.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>
#include <QTranslator>

using gesturewidget::Phrase;

namespace {

// Says every text backwards, but keeps the places of arguments.
class Backwards : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char * /*comment*/,
                      int /*number*/) const override
    {
        return qstrcmp(context, "host") == 0 && qstrcmp(source, "%1 of %2") == 0
                 ? QStringLiteral("fo %2 %1")
                 : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class PhraseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyOnes();
    void arguments_data();
    void arguments();
    void languages();
    void overAChannel();
    void damagedMessages_data();
    void damagedMessages();
};

void PhraseTest::emptyOnes()
{
    QVERIFY(Phrase().isEmpty());
    QCOMPARE(Phrase().english(), QString());
    QCOMPARE(Phrase().toJson(), QJsonValue(QString()));
    QVERIFY(!Phrase("a").isEmpty());
}

void PhraseTest::arguments_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("filled");
    QTest::newRow("none") << QByteArray("plain") << QStringLiteral("plain");
    QTest::newRow("both") << QByteArray("%1 of %2") << QStringLiteral("%2 of b");
    QTest::newRow("other order, twice") << QByteArray("%2%1%2") << QStringLiteral("b%2b");
    QTest::newRow("per cent") << QByteArray("%2 % %") << QStringLiteral("b % %");
    QTest::newRow("no such argument") << QByteArray("%3 %0") << QStringLiteral("%3 %0");
}

void PhraseTest::arguments()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, filled);
    // What looks like a place in an argument is none.
    const std::vector<Phrase> arguments{Phrase::verbatim(QStringLiteral("%2")),
                                        Phrase::verbatim(QStringLiteral("b"))};
    QCOMPARE(Phrase(text.constData(), arguments).english(), filled);
    QCOMPARE(Phrase(text.constData(), arguments).translated(), filled);
}

void PhraseTest::languages()
{
    Backwards backwards;
    QVERIFY(QCoreApplication::installTranslator(&backwards));
    const Phrase inner("%1 of %2",
                       {Phrase::verbatim(QStringLiteral("a")), Phrase::verbatim(QStringLiteral("b"))});
    const Phrase outer("%1 of %2", {inner, Phrase::verbatim(QStringLiteral("%1 of %2"))});
    QCOMPARE(outer.english(), QStringLiteral("a of b of %1 of %2"));
    QCOMPARE(outer.translated(), QStringLiteral("fo %1 of %2 fo b a"));
    QVERIFY(QCoreApplication::removeTranslator(&backwards));
}

void PhraseTest::overAChannel()
{
    const Phrase inner("%1 of %2",
                       {Phrase::verbatim(QStringLiteral("a")), Phrase::verbatim(QStringLiteral("b"))});
    const Phrase outer("so %1", {inner});
    const QJsonArray expected{
        QStringLiteral("so %1"),
        QJsonArray{QStringLiteral("%1 of %2"), QStringLiteral("a"), QStringLiteral("b")}};
    QCOMPARE(outer.toJson(), QJsonValue(expected));
    QCOMPARE(Phrase::fromJson(outer.toJson()).toJson(), outer.toJson());
    QCOMPARE(Phrase::fromJson(outer.toJson()).english(), QStringLiteral("so a of b"));
    QCOMPARE(Phrase::fromJson(QStringLiteral("as %1 is")).english(), QStringLiteral("as %1 is"));
}

void PhraseTest::damagedMessages_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QJsonValue() << QString();
    QTest::newRow("a number") << QJsonValue(7) << QString();
    QTest::newRow("an empty list") << QJsonValue(QJsonArray()) << QString();
    QTest::newRow("a list of numbers") << QJsonValue(QJsonArray{1, 2}) << QString();
    QTest::newRow("an object inside")
        << QJsonValue(QJsonArray{QStringLiteral("x%1"), QJsonObject()}) << QStringLiteral("x");
    QJsonArray deep{QStringLiteral("%1")};
    for (int i = 0; i < 1000; ++i)
        deep = QJsonArray{QStringLiteral("%1"), deep};
    QTest::newRow("too deep") << QJsonValue(deep) << QString();
}

void PhraseTest::damagedMessages()
{
    QFETCH(QJsonValue, value);
    QFETCH(QString, text);
    QCOMPARE(Phrase::fromJson(value).english(), text);
}

QTEST_MAIN(PhraseTest)
#include "tst_phrase.moc"
