#include "ratio.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

void report(const Ratio &ratio)
{
    const double value = ratio.measured / ratio.baseline;
    QString line = u"%1: %2 %4 / %3 %4 = %5"_s.arg(ratio.what)
                       .arg(ratio.measured)
                       .arg(ratio.baseline)
                       .arg(ratio.unit)
                       .arg(value, 0, 'g', 3);
    if (ratio.limit) {
        line += u" (at most %1)"_s.arg(*ratio.limit);
        if (!(value <= *ratio.limit))
            line += u" MISSED"_s;
    }
    line += u'\n';
    QFile file(qEnvironmentVariable("BENCHMARK_RATIOS"));
    if (!file.open(QIODevice::Append) || file.write(line.toUtf8()) < 0)
        qFatal("The ratios cannot be written to \"%s\"", qPrintable(file.fileName()));
}

double quantile(std::vector<double> values, double fraction)
{
    const auto place
        = values.begin()
          + static_cast<std::ptrdiff_t>(fraction * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}
