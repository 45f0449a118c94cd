#pragma once

class ZelQtValueEdit;

/// A popup of a field is about to store its result: in a line of several fields that uses
/// priorities the field becomes the one with high priority.
void takeHighPriority(ZelQtValueEdit *edit);
