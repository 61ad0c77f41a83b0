// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <memory>

class QTranslator;
class ZTConfiguration;

/// Makes the toolkit's application object as in the "C" locale and without the event loop of
/// another toolkit: the user's locale files and that loop cost a run a twentieth, and it uses
/// neither. Who does, asks the environment, which is as it was.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv);

/// Loads the labels' translation that the settings `zentaro.language.basedir` and
/// `zentaro.language.file` name: for the file "/" that of the system's language in the folder,
/// otherwise the two texts joined, by the toolkit's own lookup. The settings' bytes are the file
/// name's. False when there is none, when both settings are empty, and when together they are
/// longer than any path, 4,096 bytes.
bool loadTranslation(QTranslator &translator, const QString &base, const QString &file);

/// The same with the settings of `config`.
bool loadTranslation(QTranslator &translator, const ZTConfiguration &config);
