#pragma once

#include <QString>

/// Folder of the files that belong to the program (modules, examples, translations), found from
/// where the program lies: "../share/tarvex-workbench" both in a build folder and when installed.
QString dataFolder();
