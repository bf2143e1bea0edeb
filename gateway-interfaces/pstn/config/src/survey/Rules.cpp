#include "survey/Rules.h"

#include <algorithm>

#include "advice/Advice.h"
#include "advice/AdviceTable.h"

namespace Velquin::Pstn {

namespace {

/// The rules of a load, in the order of RuleNames.h.
constexpr auto LOAD_RULES = std::to_array<Rule>( {
    // The file and its schema
    { Rules::UNREADABLE_FILE, Severity::FAULT, "a file can't be read",
      "The configuration or the schema is not there, is no regular file, or the gateway has no right to read it. Look "
      "at the path, letter by letter, and at the rights of the file and of its folders: the gateway may run as another "
      "user than you do." },
    { Rules::ILL_FORMED, Severity::FAULT, "the file is not well-formed XML",
      "A tag is not closed, a quote is missing, an & stands alone, or a character is not of the encoding that the file "
      "declares. Nothing behind that place can be read. Mend the line, or the one above it: what is missing is often "
      "noticed only later. Write &amp; for &, and &lt; for <." },
    { Rules::TOO_LARGE, Severity::FAULT, "the file has more of something than any configuration",
      "An element has more than 1,000 attributes, more than 100 namespaces are in scope, the file has more than "
      "100,000 different names or more than 16 KB of declarations. The gateway refuses such a file, which would take "
      "its time and its memory. It is probably not a configuration at all." },
    { Rules::UNUSABLE_SCHEMA, Severity::FAULT, "the schema can't be used",
      "The schema file is damaged, is no RELAX NG schema, or is spread over several files. Without it nothing is "
      "checked, and nothing is loaded. Install pstnConfig.rng of the gateway's own version again." },
    // Elements and attributes
    { Rules::AGAINST_SCHEMA, Severity::FAULT, "the file is not as the schema wants it",
      "Something stands in a place where the format has none for it, and the schema can't tell more. Compare the "
      "element with the examples and with the reference of the format." },
    { Rules::MISSING_ATTRIBUTE, Severity::FAULT, "a required attribute is missing",
      "The gateway takes no value of its own for this attribute. Add it to the element that the finding names; look at "
      "its spelling if you believe that it is there: names are case-sensitive." },
    { Rules::UNKNOWN_ATTRIBUTE, Severity::FAULT, "the element has no such attribute",
      "The gateway would ignore the attribute, and do something else than you want. Mostly the name is misspelt, or "
      "the attribute belongs to another element. Correct or remove it." },
    { Rules::INVALID_VALUE, Severity::FAULT, "an attribute has a value that it can't have",
      "The finding names the values that are valid. Keywords are case-sensitive, numbers have no unit behind them, and "
      "blanks count." },
    { Rules::MISSING_ELEMENT, Severity::FAULT, "a required element is missing",
      "The element that the finding names must have this child. Take it from one of the examples, and look whether it "
      "slipped behind the end tag of its parent." },
    { Rules::UNKNOWN_ELEMENT, Severity::FAULT, "the element doesn't belong here",
      "Mostly its name is misspelt, it stands in the wrong parent or in the wrong order, or it stands twice where only "
      "one may stand. Correct, move or remove it." },
    { Rules::UNEXPECTED_TEXT, Severity::FAULT, "text stands between the elements",
      "The format holds all that it says in attributes. Mostly a text is what remains of a tag that lost its <, or "
      "of a comment that lost its marks. Mend the tag, or remove the text." },
    { Rules::INVALID_SEQUENCE, Severity::FAULT, "the sequence of a detector can't be read",
      "A sequence is a list of events with commas between them, each with at most one slash: \"busy/3,silence\". The "
      "gateway leaves out the whole disconnect supervision, and the lines never notice that the far end hung up. "
      "Remove empty items and further slashes." },
    // References
    { Rules::UNKNOWN_BOARD, Severity::FAULT, "there is no board of that ID",
      "Analog and digital boards are numbered apart: a digital configuration finds only digital boards, an analog one "
      "only analog boards. Correct boardID, or add the board." },
    { Rules::UNKNOWN_INTERFACE, Severity::FAULT, "the board has no interface of that ID",
      "Interfaces are numbered on each board anew; the ID is not the tirpipe number. Correct the ID, or add the "
      "interface to the board." },
    { Rules::UNKNOWN_CHANNEL_GROUP, Severity::FAULT, "there is no channel group of that ID",
      "The group must stand in channelGroups, spelt in the same way: upper and lower case, and blanks, count. Correct "
      "channelGroupID, or add the group." },
    // What stands twice
    { Rules::IDENTIFIER_TWICE, Severity::FAULT, "an identifier is taken already",
      "Two boards of a kind, two interfaces of a board, or two groups or configurations of a kind have one ID, mostly "
      "since one was copied. References could mean either. Give the second one an ID of its own, and look at what "
      "refers to it." },
    { Rules::CHANNEL_TWICE, Severity::FAULT, "a channel is in one channel group twice",
      "Two ranges of the group share a channel of one line, so that the router would hand it out twice. Let one range "
      "end before the other begins. A range without interfaceID counts for all lines of the board." },
    { Rules::TIRPIPE_TWICE, Severity::FAULT, "a tirpipe number is taken already",
      "The tirpipe number is the driver's number of a span or of an analog card. Spans and analog cards share one row "
      "of numbers over the whole gateway; two with one number would open the same device. Give each its own." },
    { Rules::PHYSICAL_CONFIG_TWICE, Severity::FAULT, "a line has two physical configurations",
      "A line is driven in one way only. Take it out of the applyTo of one of the two. A reference without interfaceID "
      "stands for all lines of the board." },
    { Rules::NFAS_MEMBER_TWICE, Severity::FAULT, "a span, or its NFAS number, is twice in a group",
      "The signalling names each span of the group by its nfasInterfaceID. Two members with one number, or one span as "
      "two members, would be mixed up. Ask the carrier for the number of each span." },
    // What doesn't fit together
    { Rules::NO_D_CHANNEL, Severity::FAULT, "a span that needs a D-channel has none",
      "Each span of a FAS group, and the PRIMARY and BACKUP members of an NFAS group, carry a D-channel. Add a "
      "DChannelE1 or DChannelT1 to the physical configuration of the span, or make the member DISABLED." },
    { Rules::UNUSED_D_CHANNEL, Severity::FAULT, "a DISABLED member has a D-channel",
      "A DISABLED member of an NFAS group carries calls only, but the physical configuration of its span has a "
      "D-channel. Apply one without D-channel to it, or make the member PRIMARY or BACKUP." },
    { Rules::CHANNELS_SWAPPED, Severity::WARNING, "the first channel of a range is greater than the last",
      "The gateway loads the file, but the range has no channels, and blocks those between its ends for other ranges "
      "of its group. Exchange firstChannel and lastChannel." },
    { Rules::NO_PHYSICAL_CONFIG, Severity::FAULT, "a line has no physical configuration",
      "The gateway doesn't know how to drive the line. Name it in the applyTo of a physical configuration; a reference "
      "without interfaceID stands for all lines of a board." },
    { Rules::NO_CALL_CONTROL, Severity::FAULT, "a line has no call control",
      "Nothing says how calls run on the line. Name a span in a fasConfig or an nfasGroup, an FXO port in an "
      "analogFxoConfig, an FXS port in an analogFxsConfig. A line that is not in use must be removed from its board." },
    // The gateway itself
    { Rules::MISSING_PARAMETER, Severity::FAULT, "a parameter of the gateway is missing",
      "The gateway takes the paths of the configuration and of the schema from its parameters. Set the one that the "
      "finding names in the gateway's parameter file." },
    { Rules::UNKNOWN_PARAMETER, Severity::WARNING, "the gateway has no parameter of that name",
      "The gateway ignores a parameter that it doesn't know, and goes on without it: it doesn't find its PSTN "
      "configuration, or takes an old one. Mostly the name is misspelt. Correct it in the parameter file; upper and "
      "lower case count." },
    { Rules::INTERNAL, Severity::FAULT, "the library could not go on",
      "Memory ended, or the library met something that must not be. The file may be right. Look at the memory of the "
      "machine, and send the log and the file to those who maintain the gateway." },
} );

constexpr auto RULES = [] {
    std::array<Rule, LOAD_RULES.size() + ADVICE_TABLE.size()> aRules{};
    const auto itAdvice = std::copy( LOAD_RULES.begin(), LOAD_RULES.end(), aRules.begin() );
    std::transform( ADVICE_TABLE.begin(), ADVICE_TABLE.end(), itAdvice,
                    []( const AdviceRule& in_entry ) { return in_entry.rule; } );
    return aRules;
}();

} // namespace

std::span<const Rule> getRules() noexcept {
    return RULES;
}

const Rule* findRule( std::string_view in_strName ) noexcept {
    const auto it =
        std::find_if( RULES.begin(), RULES.end(), [&]( const Rule& in_rule ) { return in_strName == in_rule.szName; } );
    return it == RULES.end() ? nullptr : &*it;
}

std::span<const Rule> getAdviceRules() noexcept {
    return getRules().subspan( LOAD_RULES.size() );
}

} // namespace Velquin::Pstn
