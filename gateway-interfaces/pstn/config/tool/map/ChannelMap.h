#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <velquin/pstn/PstnConfig.h>

/// Which timeslot of which line the gateway uses for what. Made from a loaded model, and independent of it afterwards.
/// Every text is printable: a question mark stands for each control character of the file.
class ChannelMap {
public:
    struct Group {
        std::string strId;
        std::string strDirection;           ///< the format's keyword
        std::string strHunting;             ///< the format's keyword; empty for a group of direction IN
        unsigned long long ullChannels = 0; ///< bearer channels on the lines
    };

    /// What a timeslot is for, whatever groups hold it.
    enum class Timeslot { BEARER, FRAMING, D_CHANNEL };
    /// How a renderer shows a timeslot.
    enum class Look {
        FREE,
        FRAMING,
        D_CHANNEL,
        GROUP,    ///< a bearer channel of one group
        SHARED,   ///< a bearer channel of several groups
        CONFLICT, ///< in a group, but no bearer channel
    };

    /// Consecutive timeslots of one use, including the first and the last.
    struct Run {
        unsigned int uFirst;
        unsigned int uLast;
        Timeslot eTimeslot;
        std::vector<std::size_t> vecGroups; ///< indices of the groups, ascending

        unsigned int getLength() const { return uLast - uFirst + 1; }
        Look getLook() const;
    };

    /// Channels that the configuration names and the line doesn't have. The first may be greater than the last.
    struct Stray {
        unsigned int uFirst;
        unsigned int uLast;
        std::optional<std::size_t> uGroup; ///< none for a D-channel
    };

    struct Line {
        std::string strUniqueId; ///< "b1di2"
        unsigned int uId = 0;
        std::string strName;
        std::string strMedia;        ///< the format's keyword
        std::string strDChannel;     ///< what the D-channel is called, "primary D-channel of NFAS group 1"
        std::vector<Run> vecRuns;    ///< all timeslots, ascending
        std::vector<Stray> vecStray; ///< by group, the D-channel last

        bool isSpan() const { return vecRuns.back().uLast > 1; }
    };

    struct Board {
        std::string strTitle; ///< "Digital board 1, Carrier card"
        std::vector<Line> vecLines;

        /// Timeslots for a scale over the lines: the first, each eighth and the last; none over ports.
        std::vector<unsigned int> getTicks() const;
    };

    explicit ChannelMap( const Velquin::Pstn::Config& in_config );

    /// Digital boards, then analog ones, both as the model has them.
    const std::vector<Board>& getBoards() const { return m_vecBoards; }
    /// By identifier.
    const std::vector<Group>& getGroups() const { return m_vecGroups; }
    /// "2 boards, 8 lines, 3 channel groups"
    std::string getSummary() const;
    bool has( Look in_eLook ) const;

    // The same words for every renderer.

    /// "1 to 15"
    static std::string describeChannels( unsigned int in_uFirst, unsigned int in_uLast );
    /// "1 to 15: carrier-in"
    std::string describe( const Line& in_line, const Run& in_run ) const;
    /// "32 to 40 of carrier-in: outside of the line"
    std::string describe( const Stray& in_stray ) const;

private:
    struct Range {
        unsigned int uFirst;
        unsigned int uLast;
        std::size_t uGroup;
    };
    struct Uses {
        std::map<const Velquin::Pstn::InterfaceConfig*, std::vector<Range>> mapRanges;
        std::map<const Velquin::Pstn::InterfaceConfig*, std::string> mapDChannels;
    };

    Uses addGroups( const Velquin::Pstn::CallControlConfig& in_callControl );
    Line makeLine( const Velquin::Pstn::InterfaceConfig& in_interface, const Uses& in_uses );
    void fill( Line& inout_line, unsigned int in_uFirst, unsigned int in_uLast,
               std::optional<unsigned int> in_uDChannel, const std::vector<Range>& in_vecRanges );
    std::string listGroups( const std::vector<std::size_t>& in_vecGroups ) const;

    std::vector<Board> m_vecBoards;
    std::vector<Group> m_vecGroups;
};
