#pragma once

namespace awizo::web {

/// Lets libxml2 read and write documents in single-byte encodings, which it leaves to a library
/// that a page doesn't have. To be called once, before the first document is read.
void registerCodePages();

}  // namespace awizo::web
