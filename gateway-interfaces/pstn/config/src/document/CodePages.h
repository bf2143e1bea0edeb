#pragma once

namespace Velquin::Pstn {

/// Lets libxml2 read files in the code pages of Windows and of East Asia where it was built without iconv, as on
/// Windows. The handlers go into libxml2's own table, which the program shares: they take only names that libxml2
/// doesn't know, and stay until somebody closes libxml2. Does nothing on other systems.
void registerCodePages();

} // namespace Velquin::Pstn
