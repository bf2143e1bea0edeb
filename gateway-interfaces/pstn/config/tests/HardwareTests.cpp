#include "ConfigTest.h"

// Providers, boards, interfaces: what their readers and containers refuse, and what they keep.

namespace Velquin::Pstn::Test {

namespace {

const std::vector<LoadCase> CASES{
    { "CompleteDocument", {}, true, {}, SCHEMA },
    { "BoardIdMissing",
      { { "<tirvanaDigitalBoard ID=\"1\" displayName", "<tirvanaDigitalBoard displayName" } },
      false,
      { "ERROR BoardConfigXmlSerializer: Missing attribute /pstnConfig/boards/tirvanaDigitalBoard[1]/ID] for board  "
        "tirvanaDigitalBoard declared in file {file} at line {line}. ",
        "ERROR XmlConfig: Configuration of the board tirvanaDigitalBoard declared in file {file} at line {line} "
        "contains one ore more errors. " } },
};

} // namespace

PSTN_LOAD_CASES( HardwareCases, CASES );

} // namespace Velquin::Pstn::Test
