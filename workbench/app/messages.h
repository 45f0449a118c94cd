#pragma once

/// Shows the messages of modules and model in message boxes from now on.
void showModelMessages();
