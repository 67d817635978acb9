#pragma once

#include <QRandomGenerator>
#include <QString>

#include <functional>
#include <iterator>

/// A fault or something that the user does. The fault run prints its name, then calls run().
struct RandomAction
{
    QString name;
    std::function<void()> run; ///< empty if there is nothing to do at the moment
};

template<typename Choices>
[[nodiscard]] const auto &oneOf(const Choices &choices, QRandomGenerator &random)
{
    return *std::next(std::begin(choices), random.bounded(int(std::size(choices))));
}
