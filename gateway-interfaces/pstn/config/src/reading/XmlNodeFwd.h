#pragma once

// Declares libxml2's node, for headers that only pass it on.
struct _xmlNode;
typedef struct _xmlNode xmlNode;
