// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTranslator;
class ZTConfiguration;

/// Loads the labels' translation that the settings `zentaro.language.basedir` and
/// `zentaro.language.file` name: for the file "/" that of the system's language in the folder,
/// otherwise the two texts joined, by the toolkit's own lookup. The settings' bytes are the file
/// name's. False when there is none, when both settings are empty, and when together they are
/// longer than any path, 4,096 bytes.
bool loadTranslation(QTranslator &translator, const QString &base, const QString &file);

/// The same with the settings of `config`.
bool loadTranslation(QTranslator &translator, const ZTConfiguration &config);
