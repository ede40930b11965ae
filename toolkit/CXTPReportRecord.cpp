/// @file
/// The record that has no looks of its own.
#include "vapp/toolkit/CXTPReportRecord.h"

CXTPReportRecord::CXTPReportRecord() = default;

CXTPReportRecord::~CXTPReportRecord() = default;

void CXTPReportRecord::GetItemMetrics(const CXTPReportRecordItemDrawArgs& /*drawArgs*/,
                                      CXTPReportRecordItemMetrics& /*metrics*/) {}
