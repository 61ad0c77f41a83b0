// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>

#include <atomic>

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
        if (!instance_pointer)
            instance_pointer = instance_destroyer.instance = new T;
    }

    static inline std::atomic<T *> instance_pointer = nullptr; ///< null before first use

private:
    /// Deletes the object when the process's static objects go.
    struct Destroyer
    {
        ~Destroyer() { delete instance; }
        T *instance;
    };

    static inline QMutex instance_mutex;
    static inline Destroyer instance_destroyer{nullptr};
};
