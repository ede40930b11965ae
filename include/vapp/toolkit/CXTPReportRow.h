/// @file
/// A row of a report in virtual mode: a number, made when somebody asks for it.
#pragma once

/// A row; valid until the next population.
class CXTPReportRow {
public:
    explicit CXTPReportRow(int index) : m_index(index) {}
    /// Number from 0, in display order.
    [[nodiscard]] int GetIndex() const { return m_index; }

    friend bool operator==(const CXTPReportRow&, const CXTPReportRow&) = default;

private:
    int m_index;
};
