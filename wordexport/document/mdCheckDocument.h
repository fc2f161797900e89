#pragma once

class clsWordPackage;

/// Checks a document as strictly as a word processor: all XML parts must be well-formed, and all relationships and
/// references to them must have a target. A fault is an error that names the part. The layer itself reads only what it
/// needs, and would pass faults on.
void mdCheckDocument(clsWordPackage &package);
