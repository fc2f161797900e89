#pragma once

class clsWordPackage;

/// Looks at a document from outside as a word processor would: each part that is XML is read to the letter, and each
/// relationship, and each reference to one, leads somewhere. What is wrong is an error that names the part. The layer
/// itself reads what it needs and no more, and would hand the rest on as it is.
void mdCheckDocument(clsWordPackage &package);
