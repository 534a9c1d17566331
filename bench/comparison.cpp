#include "bench/comparison.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace
{

QString verdict(const QString &goal, bool isMet)
{
    return "goal " + goal + (isMet ? ": met" : ": MISSED");
}

void printRow(const QString &name, const QString &ours, const QString &peers, const QString &unit,
              const QString &ratio, const QString &goal)
{
    std::printf("%-58s %9s %9s %-9s %6s  %s\n", qPrintable(name), qPrintable(ours), qPrintable(peers),
                qPrintable(unit), qPrintable(ratio), qPrintable(goal));
    std::fflush(stdout);
}

} // namespace

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double secondsOf(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void Comparison::add(double ours, double peers)
{
    m_ours.push_back(ours);
    m_peers.push_back(peers);
}

void Comparison::print() const
{
    const double ours = median(m_ours);
    const double peers = median(m_peers);
    const double ratio = peers > 0 ? ours / peers : 0;
    const double most = m_measure.mostRatio;
    printRow(m_measure.name, QString::number(ours, 'f', 2), QString::number(peers, 'f', 2), m_measure.unit,
             QString::number(ratio, 'f', 3),
             most > 0 ? verdict("<= " + QString::number(most, 'f', 3), ratio <= most) : QString());
}

void printValue(const QString &name, const std::vector<double> &values, const QString &unit, double most)
{
    const double value = median(values);
    printRow(name, QString::number(value, 'f', 2), "-", unit, "-",
             most >= 0 ? verdict("<= " + QString::number(most, 'f', 0), value <= most) : QString());
}
