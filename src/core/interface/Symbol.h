#pragma once

#include "interface/View.h"

#include <cstdint>

namespace zarvil {

/// The pictures that a layout draws in the colors of text; each front end has its own drawing.
enum class Symbol : std::uint8_t {
    None,
    Shield,        ///< filled, with a tick
    ShieldOff,     ///< outlined, with a dash
    ShieldUnknown, ///< outlined, empty
    Warning,
    Dot,
    Tick, ///< in a ring
    Plug,
    Eye,
    Script,
    Lock,
    LockOpen
};

/// A picture beside a text that says the same in words; assistive programs need not hear of it.
class SymbolView : public View {
public:
    void setSymbol(Symbol symbol) { symbol_.set(symbol); }
    [[nodiscard]] Symbol symbol() const { return symbol_.get(); }
    [[nodiscard]] const Property<Symbol>& symbolProperty() const { return symbol_; }

private:
    Property<Symbol> symbol_{Symbol::None};
};

} // namespace zarvil
