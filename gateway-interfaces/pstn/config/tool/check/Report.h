#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "CheckedFile.h"

/// Tells what a check found. This one tells nothing.
class Report {
public:
    Report() = default;
    Report( const Report& ) = delete;
    Report& operator=( const Report& ) = delete;
    virtual ~Report() = default;

    virtual void add( const CheckedFile& ) {}
    /// Ends the report, after all files.
    virtual void finish( const CheckTotals& ) {}
};

/// What docs/check-json.md describes.
std::unique_ptr<Report> makeJsonReport( std::ostream& inout_stream );

/// SARIF 2.1.0, the format in which programs exchange what checkers found.
std::unique_ptr<Report> makeSarifReport( std::ostream& inout_stream );
