#include "textfielddoublevalidator.h"

QValidator::State TextFieldDoubleValidator::validate(QString &input, int &pos) const
{
    Q_UNUSED(pos)
    if (input.isEmpty() || input == u"-")
        return Intermediate;
    if (isAcceptable(input))
        return Acceptable;
    Q_EMIT refused();
    return Invalid;
}

bool TextFieldDoubleValidator::isAcceptable(const QString &input) const
{
    const qsizetype point = input.indexOf(u'.');
    if (point >= 0 && (decimals() == 0 || input.size() - point - 1 > decimals()))
        return false;

    bool isNumber = false;
    const double value = input.toDouble(&isNumber);
    return isNumber && !(value < bottom()) && value <= top();
}
