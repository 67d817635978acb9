#pragma once

#include <QDoubleValidator>
#include <QtQmlIntegration>

/*!
 * Validates real numbers in the C locale so strictly that a number outside of the range cannot
 * even be begun: with a bottom of 10, typing "1" is refused.
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
    /// A text was Invalid. A field drops the key or the paste that would have led to it.
    void refused() const;

private:
    [[nodiscard]] bool isAcceptable(const QString &input) const;
};
