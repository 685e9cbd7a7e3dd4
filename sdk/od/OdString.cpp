#include "sdk/od/OdString.h"

OdString::OdString(const char *text, int codePage)
    : m_text(QString::fromLatin1(text))
{
    Q_UNUSED(codePage) // one code page is in use, and Latin-1 agrees with it on ASCII
}

OdString::OdString(const wchar_t *text)
    : m_text(text ? QString::fromWCharArray(text) : QString())
{
}

OdString::OdString(const QString &text)
    : m_text(text)
{
}
