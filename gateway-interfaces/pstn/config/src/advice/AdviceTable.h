#pragma once

#include <array>

#include "advice/AdviceReport.h"
#include "advice/AdviceSubject.h"
#include "survey/Rules.h"

namespace Velquin::Pstn {

/// Looks for one kind of mistake in the whole model. Takes a model with missing parts, and says nothing that only
/// follows from them. The time that it takes grows with the model, not faster.
using AdviceFunction = void ( * )( const AdviceSubject& in_subject, AdviceReport& inout_report );

struct AdviceRule {
    Rule rule;
    AdviceFunction advise;
};

#define PSTN_CONFIG_ADVICE( name ) void name( const AdviceSubject& in_subject, AdviceReport& inout_report )
PSTN_CONFIG_ADVICE( adviseChannelOutsideLine );
PSTN_CONFIG_ADVICE( adviseDChannelInRange );
PSTN_CONFIG_ADVICE( adviseDChannelTimeslot );
PSTN_CONFIG_ADVICE( adviseGroupEmpty );
PSTN_CONFIG_ADVICE( adviseChannelUnused );
PSTN_CONFIG_ADVICE( adviseSpanInTwoIsdnGroups );
PSTN_CONFIG_ADVICE( adviseNfasPrimary );
PSTN_CONFIG_ADVICE( adviseNfasMixedMedia );
PSTN_CONFIG_ADVICE( adviseSignallingNotCcs );
PSTN_CONFIG_ADVICE( adviseLineOfOtherMedia );
PSTN_CONFIG_ADVICE( adviseClockReference );
PSTN_CONFIG_ADVICE( adviseCompanding );
PSTN_CONFIG_ADVICE( advisePortType );
PSTN_CONFIG_ADVICE( advisePortInTwoConfigs );
PSTN_CONFIG_ADVICE( advisePortNumberTwice );
PSTN_CONFIG_ADVICE( advisePhoneNumberTwice );
PSTN_CONFIG_ADVICE( adviseNoHangUpDetection );
PSTN_CONFIG_ADVICE( advisePeer );
PSTN_CONFIG_ADVICE( adviseUsedTwice );
PSTN_CONFIG_ADVICE( adviseValueOutOfCustom );
#undef PSTN_CONFIG_ADVICE

/// All rules of the advice.
inline constexpr auto ADVICE_TABLE = std::to_array<AdviceRule>( {
    // Channels
    { { "channel-outside-line", Severity::WARNING, "a range names channels that its line doesn't have",
        "An E1 line has the channels 1 to 31, a T1 line 1 to 24. The router hands out the channels of a group one "
        "after the other; a call on a channel that no line has fails, and to the caller the gateway seems to be at "
        "fault. Set firstChannel and lastChannel to channels of the line. Where the range is right, the line may be "
        "wrong: look at the physical configuration that is applied to the span." },
      &adviseChannelOutsideLine },
    { { "d-channel-in-range", Severity::WARNING, "a range holds the timeslot of the D-channel",
        "The D-channel carries the signalling of the span, and no calls. A call that the router puts on its timeslot "
        "fails: the other side refuses the channel. End the range before the timeslot and begin another one behind it. "
        "An E1 line whose D-channel is in timeslot 16 has the ranges 1 to 15 and 17 to 31; a T1 line with the "
        "D-channel in timeslot 24 has the range 1 to 23." },
      &adviseDChannelInRange },
    { { "d-channel-timeslot", Severity::WARNING, "the D-channel isn't in the timeslot where ISDN has it",
        "The D-channel of an E1 line is in timeslot 16, that of a T1 line in timeslot 24. In any other timeslot the "
        "two sides don't hear each other, no call comes or goes, and the line shows no alarm. Set channelIndex to 16 "
        "or 24. Keep another timeslot only if the other side says that it has its D-channel there." },
      &adviseDChannelTimeslot },
    { { "group-empty", Severity::NOTE, "no channel is in the channel group",
        "Nothing puts channels into this group: a call that the router sends there finds none. Name the group in a "
        "BChannelRange of an ISDN group, or in an interfaceRef of an FXO or FXS configuration, or remove it." },
      &adviseGroupEmpty },
    { { "channel-unused", Severity::NOTE, "channels of a line are in no channel group",
        "The router reaches a channel only through a channel group. It places no calls on the channels that are named "
        "here, and calls that arrive on them are refused. Add a BChannelRange for them, unless the carrier has given "
        "you only a part of the line." },
      &adviseChannelUnused },
    // ISDN
    { { "span-in-two-isdn-groups", Severity::WARNING, "a span is in two ISDN groups",
        "Two groups want to run the signalling of one span, each with settings of its own. Which one wins depends on "
        "the order of the start; calls of the other one fail. Leave the span in the group whose settings fit the other "
        "side, and take it out of the other one. A board without interfaceID stands for all of its spans." },
      &adviseSpanInTwoIsdnGroups },
    { { "nfas-primary", Severity::WARNING, "an NFAS group hasn't exactly one PRIMARY and at most one BACKUP D-channel",
        "One D-channel carries the signalling of the whole group, and at most one other takes over when it fails. "
        "Without a PRIMARY one no span of the group takes a call; with two of a kind the two sides don't agree which "
        "one counts. Ask the carrier which span carries the D-channel, make it PRIMARY, the reserve BACKUP, and all "
        "others DISABLED." },
      &adviseNfasPrimary },
    { { "nfas-mixed-media", Severity::WARNING, "an NFAS group has E1 and T1 lines",
        "The D-channel of a group names a channel by span and timeslot, and both sides count timeslots as its own line "
        "has them. Carriers offer such groups over lines of one kind only. Look whether a span has the wrong physical "
        "configuration; otherwise make a group for the lines of each kind." },
      &adviseNfasMixedMedia },
    { { "signalling-not-ccs", Severity::WARNING, "an E1 line under ISDN hasn't common channel signalling",
        "ISDN signals through a common channel (CCS). With CAS the card uses timeslot 16 for the signalling of each "
        "channel, with NONE it leaves it alone: the D-channel never comes up. Set E1Signaling to CCS." },
      &adviseSignallingNotCcs },
    // Lines and clock
    { { "line-of-other-media", Severity::WARNING, "framing or line code of a T1 line on an E1 line, or the reverse",
        "ESF, ESF_Japan, D4 and B8ZS belong to T1 lines; CRC4, NonCRC4 and HDB3 to E1 lines; AMI is on both. With the "
        "other kind's setting the card doesn't find the frames of the line, which stays in alarm. Take the values from "
        "the order sheet of the line; E1 lines mostly have CRC4 and HDB3, T1 lines ESF and B8ZS." },
      &adviseLineOfOtherMedia },
    { { "clock-reference", Severity::WARNING, "a board has no clock, or takes it from a line that gives none",
        "A TERMINAL span follows the clock of its line, and the board follows the span that primaryClockReference "
        "names. If all spans are TERMINAL and none is named, the board runs on its own clock; if a NETWORK span is "
        "named, the board follows itself. Both drift against the exchange: clicks, broken faxes and lost D-channels "
        "follow, some minutes apart. Name the TERMINAL span with the best line." },
      &adviseClockReference },
    { { "companding", Severity::NOTE, "mu-law on an E1 line, or A-law on a T1 line",
        "E1 lines speak A-law (PCMA), T1 lines mu-law (PCMU). With the other law voices are loud and distorted. A line "
        "may differ, as E1 lines between North American exchanges do: then leave it as it is." },
      &adviseCompanding },
    // Analog ports
    { { "port-type", Severity::WARNING, "an FXO configuration on an FXS port, or the reverse",
        "An FXO port is plugged into an exchange, an FXS port into a telephone: one waits for ringing, the other one "
        "makes it. With the settings of the other kind no call comes or goes on the port. Move the port to a "
        "configuration of its kind, or correct its type, which the module on the card decides." },
      &advisePortType },
    { { "port-in-two-configs", Severity::WARNING, "a port is in two FXO or two FXS configurations",
        "Two configurations want to run the calls of one port, and it is in the channel groups of both. Which settings "
        "count depends on the order of the start. Leave the port in one of them." },
      &advisePortInTwoConfigs },
    { { "port-number-twice", Severity::WARNING, "two ports of a board have one tirpipe interface",
        "The tirpipe interface is the driver's number of the socket on the card. Of two ports with one number only one "
        "can be opened, and nobody serves the socket that was meant. Give each port the number of its socket." },
      &advisePortNumberTwice },
    { { "phone-number-twice", Severity::WARNING, "two telephones have one number",
        "The number of a telephone tells who calls. With one number for two, logs and bills mix them up, and a call "
        "back may ring the wrong one. Give each telephone a number of its own." },
      &advisePhoneNumberTwice },
    { { "no-hang-up-detection", Severity::WARNING, "lines never notice that the far end hung up",
        "An FXO line has no message for the end of a call: the gateway hears tones, or counts the rings that stay "
        "away. Without a detector a call ends only when the inside hangs up; a call that nobody ends blocks the line, "
        "and may cost money all night. Add a detector for the busy tone of the exchange, or set the "
        "ringCadenceDetector to YES." },
      &adviseNoHangUpDetection },
    // Boards
    { { "peer", Severity::WARNING, "the two ends of a virtual link don't name each other",
        "A virtual span is the end of a link inside the gateway. Its other end must be a virtual span, too, not "
        "itself, and must name this one in turn. Otherwise what is sent into the link comes out nowhere. Set "
        "peerVirtualBoardID and peerVirtualInterfaceID of both ends." },
      &advisePeer },
    { { "used-twice", Severity::WARNING, "two boards have one PCI slot, or two things one ID or name",
        "Only one card is in a slot: the gateway finds one of two boards that name it, and not the other one. Two "
        "physical configurations with one ID, or two lines of a board with one display name, load and work; but nobody "
        "who reads the log or the pages of the gateway can tell them apart. Give each its own." },
      &adviseUsedTwice },
    // Limits
    { { "value-out-of-custom", Severity::WARNING, "a value that no line has",
        "The gateway takes the value, and does with it what it can. But it is beyond what lines, exchanges or people "
        "do: mostly a digit too many, seconds instead of milliseconds, or a 0 that switches something off without "
        "saying so. The finding tells the values that make sense. If yours is meant, leave it." },
      &adviseValueOutOfCustom },
} );

} // namespace Velquin::Pstn
