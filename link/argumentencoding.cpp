#include "argumentencoding.h"

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

QString int32Argument(int value)
{
    return u"int32:%1"_s.arg(value);
}

QString booleanArgument(bool value)
{
    return u"boolean:%1"_s.arg(value ? 1 : 0);
}

QString doubleArgument(double value)
{
    return u"double:%1"_s.arg(value);
}

QString doubleArgument(double value, int decimals)
{
    return u"double:"_s + QString::number(value, 'f', decimals);
}

QString stringArgument(const QString &value)
{
    return u"string:"_s + value;
}

QString joinArguments(const QStringList &arguments)
{
    return arguments.join(u' ');
}

DoubleArraysArgument::DoubleArraysArgument(const QString &begin, qsizetype expectedSize)
{
    m_text.reserve(begin.size() + expectedSize);
    m_text += begin + "array:array:double:"_L1;
}

void DoubleArraysArgument::append(std::initializer_list<QString> numbers)
{
    if (!m_empty)
        m_text += u';';
    m_empty = false;
    QStringView separator;
    for (const QString &number : numbers) {
        m_text += separator;
        m_text += number;
        separator = u",";
    }
}

} // namespace EmulationManagement::Internal
