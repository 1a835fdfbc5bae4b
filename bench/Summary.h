#pragma once

/** @file
 * What is told of a case that was measured several times. It knows neither windows nor the benchmark library.
 */

#include <string>
#include <vector>

/** The middle of several numbers and how far they go. */
struct Spread
{
    double median = 0;
    double least = 0;
    double most = 0;
};

/** The spread of the values; zeros when there are none. */
Spread SpreadOf(std::vector<double> values);

/** A case and the times of its sides in seconds, one of each side a round. */
class CaseTimes
{
  public:
    /** @param parts by how many each time is divided. */
    explicit CaseTimes(std::string name, int parts = 1);

    const std::string& Name() const { return m_name; }

    /**
     * Takes the time of one run.
     * @param run `<case>/ours` or `<case>/stock`.
     * @return false when the run belongs to another case.
     */
    bool Add(const std::string& run, double seconds);

    bool HasStock() const { return !m_stock.empty(); }
    Spread Ours() const { return SpreadOf(m_ours); }
    Spread Stock() const { return SpreadOf(m_stock); }

    /** The ratio of the medians, and the least and the greatest ratio of a round. */
    Spread Ratio() const;

  private:
    std::string m_name;
    int m_parts;
    std::vector<double> m_ours;
    std::vector<double> m_stock;
};

/** A time as people read it: three digits and a unit. */
std::string TimeText(double seconds);

/** Titles of the columns of the lines that TextRow makes. */
std::string TextHeading();

/** A case as a line of a plain table. */
std::string TextRow(const CaseTimes& times);

/** A case as a row of a Markdown table with the same columns. */
std::string MarkdownRow(const CaseTimes& times);
