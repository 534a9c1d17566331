// Preloaded under ThreadSanitizer: tells it what comes before what by locks of Qt's, which is not built with
// the sanitizer.
//   What was done before work was given to a thread pool comes before the work.
//   What a thread has done before it emitted a signal of its own, or asked whether it is to end, comes before
//   its end, for whoever waits for that.

#include <functional>
#include <memory>
#include <utility>

#include <dlfcn.h>

// Not there in the programs that a test starts.
extern "C" __attribute__((weak)) void
__tsan_acquire(void *address); // NOLINT(bugprone-reserved-identifier): theirs
extern "C" __attribute__((weak)) void
__tsan_release(void *address); // NOLINT(bugprone-reserved-identifier): theirs

namespace
{

template<typename Function> Function *theirs(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

void acquire(void *place)
{
    if (__tsan_acquire)
        __tsan_acquire(place);
}

void release(void *place)
{
    if (__tsan_release)
        __tsan_release(place);
}

// Work that is given to GStreamer's threads.
struct Call {
    void (*run)(void *element, void *data);
    void *data;
    void (*forget)(void *data);
};

void runCall(void *element, void *data)
{
    acquire(data);
    const auto *call = static_cast<Call *>(data);
    call->run(element, call->data);
}

void forgetCall(void *data)
{
    const std::unique_ptr<Call> call(static_cast<Call *>(data));
    if (call->forget)
        call->forget(call->data);
}

} // namespace

// These stand before the libraries' own.

class QThreadPool
{
public:
    void start(std::function<void()> work, int priority);
};

void QThreadPool::start(std::function<void()> work, int priority)
{
    static auto *const start =
        theirs<void(QThreadPool *, std::function<void()>, int)>("_ZN11QThreadPool5startESt8functionIFvvEEi");
    const auto place = std::make_shared<char>();
    std::function<void()> ordered = [place, work = std::move(work)] {
        acquire(place.get());
        work();
    };
    release(place.get()); // after the last copy
    start(this, std::move(ordered), priority);
}

class QObject;

struct QMetaObject {
    static void activate(QObject *sender, const QMetaObject *type, int signal, void **arguments);
};

void QMetaObject::activate(QObject *sender, const QMetaObject *type, int signal, void **arguments)
{
    static auto *const activate = theirs<void(QObject *, const QMetaObject *, int, void **)>(
        "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    release(sender);
    activate(sender, type, signal, arguments);
}

class QThread
{
public:
    bool isInterruptionRequested() const;
    bool wait(unsigned long milliseconds);
};

bool QThread::isInterruptionRequested() const
{
    static auto *const isRequested = theirs<bool(const QThread *)>("_ZNK7QThread23isInterruptionRequestedEv");
    release(const_cast<QThread *>(this));
    return isRequested(this);
}

bool QThread::wait(unsigned long milliseconds)
{
    static auto *const wait = theirs<bool(QThread *, unsigned long)>("_ZN7QThread4waitEm");
    const bool hasEnded = wait(this, milliseconds);
    if (hasEnded)
        acquire(this);
    return hasEnded;
}

extern "C" void gst_element_call_async(void *element, void (*run)(void *element, void *data), void *data,
                                       void (*forget)(void *data))
{
    static auto *const callAsync =
        theirs<void(void *, void (*)(void *, void *), void *, void (*)(void *))>("gst_element_call_async");
    auto *call = new Call{run, data, forget};
    release(call);
    callAsync(element, runCall, call, forgetCall);
}
