// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The text of a settings file: reading it, changing one value, reading it again.

#include "host/files/IniText.h"
#include "tests/fuzz/Fuzz.h"

using gesturewidget::IniText;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = fuzz::bytes(data, size);
    IniText ini(text);
    const auto values = ini.values();
    if (IniText::isWellFormed(text))
        fuzz::check(IniText(ini.text()).values() == values, "what was read is written");

    // The end of the input is a value, and what stands before it a key.
    const QString value = QString::fromUtf8(text.right(text.size() / 3));
    const QString key = QString::fromUtf8(text.mid(text.size() / 3, text.size() / 3));
    const QString name = IniText::nameOf(QStringLiteral("Section"), key);
    ini.set(name, value);
    auto expected = values;
    expected.insert(name, value);
    const QByteArray written = ini.text();
    fuzz::check(IniText::isWellFormed(written), "what is written is well-formed");
    fuzz::check(IniText(written).values() == expected, "one value changes and all others stay");
    return 0;
}
