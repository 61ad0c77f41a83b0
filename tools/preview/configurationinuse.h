// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTranslator>

class ZTConfiguration;

namespace preview {

/// The process's configuration, and the translation of the labels that it names: what requests are
/// rendered with. It needs an application object, and there is one of it at a time.
class ConfigurationInUse
{
public:
    ConfigurationInUse() = default;
    ConfigurationInUse(const ConfigurationInUse &) = delete;
    ConfigurationInUse &operator=(const ConfigurationInUse &) = delete;
    ~ConfigurationInUse();

    /// Uses the user's own configuration, as the print run reads it.
    void useOwn();
    /// Uses another file, cfg or xml by its name. Answers why it cannot be read, and an empty text
    /// when it was.
    QString use(const QString &fileName);

private:
    void translate(const ZTConfiguration &configuration);

    QTranslator translator;
};

} // namespace preview
