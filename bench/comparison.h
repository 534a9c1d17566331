#pragma once

#include <QString>

#include <functional>
#include <vector>

// The middle one; of two middle ones their mean. 0 of none.
double median(std::vector<double> values);

// Seconds that the work takes, by the wall clock.
double secondsOf(const std::function<void()> &work);

// What a row of the table is about.
struct Measure {
    QString name;
    QString unit;
    double mostRatio = 0; // the goal for ours divided by the peer's; 0 where there is none
};

// One row: what we take beside what a peer takes for the same. Each round measures both, in turn, so that
// both meet the same moods of the machine; the medians of the rounds are compared.
class Comparison
{
public:
    explicit Comparison(Measure measure) : m_measure(std::move(measure)) {}

    void add(double ours, double peers);
    void print() const;

private:
    Measure m_measure;
    std::vector<double> m_ours;
    std::vector<double> m_peers;
};

// A row without a peer: the median, the goal for it (negative: none).
void printValue(const QString &name, const std::vector<double> &values, const QString &unit,
                double most = -1);
