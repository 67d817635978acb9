#include "textfielddoublevalidator.h"

QValidator::State TextFieldDoubleValidator::validate(QString &input, int &pos) const
{
    Q_UNUSED(pos)
    if (input.isEmpty() || input == u"-")
        return Intermediate;

    const qsizetype point = input.indexOf(u'.');
    if (point >= 0 && (decimals() == 0 || input.size() - point - 1 > decimals()))
        return Invalid;

    bool isNumber = false;
    const double value = input.toDouble(&isNumber);
    return isNumber && !(value < bottom()) && value <= top() ? Acceptable : Invalid;
}
