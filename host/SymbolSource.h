#pragma once
/// Where a drawing's instances find their symbols. Drawing knows this and not the store.

#include <memory>
#include <string>

#include "host/Symbol.h"

namespace navigator {

/// A symbol, and where it stands: its own instances are looked up from there.
struct FoundSymbol {
    std::shared_ptr<const Symbol> symbol;  ///< Null if there is none.
    std::string library;
    std::string cell;
};

class SymbolSource {
public:
    virtual ~SymbolSource() = default;
    /// The symbol that an instance in a drawing of that library refers to.
    virtual FoundSymbol Resolve(const std::string& library, const std::string& reference) = 0;

protected:
    SymbolSource() = default;
    SymbolSource(const SymbolSource&) = default;
    SymbolSource& operator=(const SymbolSource&) = default;
};

}  // namespace navigator
