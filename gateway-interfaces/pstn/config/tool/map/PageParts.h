#pragma once

// Style and script of the page, from page.css and page.js.
extern const char* const PAGE_STYLE;
extern const char* const PAGE_SCRIPT;
