// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>

#include <atomic>
#include <memory>

/// The one object of a class in this process: created on first use, deleted at exit. Any thread may
/// ask for it; `T` needs a default constructor. What may be done with the object is `T`'s to say: a
/// ZTConfiguration may be asked by several threads, an HLogManager and its Loggers are used by one
/// at a time, a DatabaseManager by one for good. doc/example.cpp takes all three.
///
///     const QString level =
///         SyncSingleton<ZTConfiguration>::instance()->getStrValue(u"zentaro.logger.level"_s);
template <typename T>
class SyncSingleton
{
public:
    /// The object; the first call creates it.
    static T *instance()
    {
        if (!instance_pointer)
            createInstance();
        return instance_pointer;
    }

    /// Creates the object unless another thread has done so.
    static void createInstance()
    {
        const QMutexLocker lock(&instance_mutex);
        if (instance_pointer)
            return;
        instance_destroyer = std::make_unique<T>();
        instance_pointer = instance_destroyer.get();
    }

    static inline std::atomic<T *> instance_pointer = nullptr; ///< null before first use

private:
    static inline QMutex instance_mutex;
    static inline std::unique_ptr<T> instance_destroyer; // goes with the process's static objects
};
