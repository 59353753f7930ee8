#ifndef TOVUUTIL_FRAMEWORK_DETAIL_CACHEDRESOURCE_H
#define TOVUUTIL_FRAMEWORK_DETAIL_CACHEDRESOURCE_H

#include <memory>
#include <mutex>

#include "tovuutil/framework/ResourceManager.h"

namespace tovu {
namespace detail {

// One cached object, shared between the cache and whoever works on it: removing
// it from the cache drops only the cache's share, so the object lives until the
// last user is done. The services hold `lock` for each operation on it, which
// makes every such operation atomic.
struct CachedResource {
    explicit CachedResource(Resource* resource) : object(resource) {}
    std::unique_ptr<Resource> object;
    std::mutex lock;
    // Set, under lock, once the cache has unloaded and dropped the object.
    bool removed = false;
};

// A share with its lock held, for one operation.
template <class T>
class LockedResource {
public:
    explicit LockedResource(std::shared_ptr<CachedResource> share) : share_(std::move(share))
    {
        if (share_)
            lock_ = std::unique_lock<std::mutex>(share_->lock);
    }
    // The caches hold one kind of object each.
    T* get() const { return share_ ? static_cast<T*>(share_->object.get()) : nullptr; }
    // Whether the object was removed from the cache before the lock was had.
    bool removed() const { return share_ && share_->removed; }

private:
    std::shared_ptr<CachedResource> share_;
    std::unique_lock<std::mutex> lock_;
};

} // namespace detail
} // namespace tovu

#endif
