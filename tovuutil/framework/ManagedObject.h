#ifndef TOVUUTIL_FRAMEWORK_MANAGEDOBJECT_H
#define TOVUUTIL_FRAMEWORK_MANAGEDOBJECT_H

#include <tovuutil/export.h>

// CleanupAdapter
//
// Type-erased owner: lets one list delete objects of any class.
class TOVU_API CleanupAdapter {
public:
    CleanupAdapter() = default;
    CleanupAdapter(CleanupAdapter const&) = delete;
    CleanupAdapter& operator=(CleanupAdapter const&) = delete;
    virtual ~CleanupAdapter();
    // Deletes the held object; the base holds nothing.
    virtual void cleanup();
};

// ManagedObject<T>
//
// Owns one T. cleanup() and the destructor delete it (once) and clear the pointer.
template <class T>
class ManagedObject : public CleanupAdapter {
public:
    // Takes ownership of object (which may be null).
    explicit ManagedObject(T* object) : object_(object) {}
    ~ManagedObject() override { ManagedObject::cleanup(); }

    void cleanup() override
    {
        T* object = object_;
        object_ = nullptr;
        delete object;
    }

    // The owned object; null after cleanup().
    T* get() const { return object_; }

private:
    T* object_;
};

// ManagedTovuObject
//
// Base of the objects a client hands to ObjectLifetimeManager::addObject.
class TOVU_API ManagedTovuObject {
public:
    ManagedTovuObject() = default;
    // Copyable; the lifetime manager owns what it is handed, not copies.
    ManagedTovuObject(ManagedTovuObject const&) = default;
    // Copyable, as above.
    ManagedTovuObject& operator=(ManagedTovuObject const&) = default;
    virtual ~ManagedTovuObject();
};

#endif
