#pragma once

#include <QDoubleValidator>
#include <QtQmlIntegration>

/*!
 * Validates real numbers in the C locale. Text outside the range is never Intermediate: with a
 * bottom of 10, typing "1" is refused although "10" would follow.
 */
class TextFieldDoubleValidator : public QDoubleValidator
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QDoubleValidator::QDoubleValidator;

    /*!
     * Empty text and a lone "-" are Intermediate. A number within the range that has at most
     * decimals() characters after its point is Acceptable, all else Invalid.
     */
    State validate(QString &input, int &pos) const override;

Q_SIGNALS:
    /// A text was Invalid; the field ignores the key press or paste that produced it.
    void refused() const;

private:
    [[nodiscard]] bool isAcceptable(const QString &input) const;
};
