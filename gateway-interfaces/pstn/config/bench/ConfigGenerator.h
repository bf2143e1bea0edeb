#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace Velquin::Pstn {

/// What a generated configuration consists of. Boards and interfaces are numbered from 1. Every board has a channel
/// group of its own. NFAS groups have digital boards of their own, behind the others.
struct ConfigShape {
    enum class Line { E1, T1 };
    /// The FAS groups: one for each span, one for each board, or none. Spans outside the NFAS groups need a FAS group.
    enum class Fas { PER_SPAN, PER_BOARD, NONE };
    /// How a group or a physical configuration names the interfaces of a board: each of them, or the board.
    enum class References { PER_INTERFACE, PER_BOARD };

    unsigned int uAnalogBoards = 0; ///< FXO and FXS boards in turn; the first is FXO
    unsigned int uPorts = 8;        ///< of an analog board
    unsigned int uDigitalBoards = 0;
    unsigned int uSpans = 16;        ///< of a digital board, those of the NFAS groups included
    unsigned int uVirtualBoards = 0; ///< an even number: the first is linked with the second, and so on
    unsigned int uVirtualSpans = 8;  ///< of a virtual board
    unsigned int uNfasGroups = 0;    ///< each over all spans of a T1 board of its own: primary, backup, others
    Line eLine = Line::E1;           ///< of the digital boards outside the NFAS groups, and of the virtual ones
    Fas eFas = Fas::PER_SPAN;
    References eReferences = References::PER_INTERFACE;

    /// Number of interfaces, of all kinds.
    unsigned long long getInterfaces() const noexcept;
    /// Why no valid configuration can have this shape; empty when one can.
    std::string getFault() const;
};

/// One of the shapes that the benchmark measures:
/// - "trunks": E1 boards of 16 spans, a FAS group for each span;
/// - "carrier": T1 boards of 16 spans, an NFAS group with backup over each;
/// - "mixed": a quarter analog ports (FXO and FXS boards of 8), half E1 spans (boards of 16, a FAS group for each
///   board), a quarter virtual spans (linked boards of 8).
/// @param in_uInterfaces at least this many interfaces: trunks and carrier grow by 16, mixed by 64
/// @throws std::invalid_argument when no shape has that name
ConfigShape getNamedShape( std::string_view in_strName, unsigned int in_uInterfaces );

/// Writes a configuration that is valid, loads without a word and passes the cross-checks. Keeps nothing of it in
/// memory. The caller checks the stream for failure.
/// @throws std::invalid_argument with ConfigShape::getFault()
void generateConfig( const ConfigShape& in_shape, std::ostream& inout_stream );

} // namespace Velquin::Pstn
