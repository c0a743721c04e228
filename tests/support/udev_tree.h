// Devices for those who ask the device manager's library, libudev, in the place of this machine's. This
// header defines the functions of the library anew, so that exactly one source file of a test program may
// include it. Those that begin a listing fail by FailingCall.
#pragma once

#include <libudev.h>

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "support/failing_call.h"

struct udev {};
struct udev_enumerate {};
struct udev_list_entry {
    std::string name;
    udev_list_entry* next = nullptr;
};
struct udev_device {
    std::string path;  ///< its name in listings
    std::string name;  ///< the last part of it
    std::string subsystem;
    std::string type;
    udev_device* parent = nullptr;
    std::optional<std::string> node = {};
    std::optional<std::string> driver = {};
    std::map<std::string, std::string> attributes = {};
    std::map<std::string, std::string> properties = {};
    std::deque<udev_list_entry> links = {};
};

namespace velmora::test {

/// All devices, and those that a listing names. All tests share the one object; begin and end with a new one.
struct UdevTree {
    std::deque<udev_device> devices;
    std::deque<udev_list_entry> listed;  ///< of the subsystem that was asked for, and what is gone since
    std::vector<std::string> pulled;     ///< what is listed and not there any more
    int held = 0;                        ///< objects that were given out and not given back
};

inline UdevTree& udevTree() {
    static UdevTree tree;
    return tree;
}

inline void append(std::deque<udev_list_entry>& entries, const std::string& name) {
    entries.push_back({name});
    if (entries.size() > 1) {
        entries[entries.size() - 2].next = &entries.back();
    }
}

/// The text as the library gives it: nothing is no text.
inline const char* given(const std::optional<std::string>& text) {
    return text ? text->c_str() : nullptr;
}
inline const char* given(const std::map<std::string, std::string>& texts, const std::string& key) {
    const auto found = texts.find(key);
    return found == texts.end() ? nullptr : found->second.c_str();
}

/// Counts an object that is given out.
template <typename T>
T* lend(T* object) {
    ++udevTree().held;
    return object;
}
template <typename T>
T* takeBack(T*) {
    --udevTree().held;
    return nullptr;
}

}  // namespace velmora::test

using velmora::test::udevTree;

extern "C" udev* udev_new() {
    static udev library;
    return velmora::test::FailingCall::reason("udev_new") ? nullptr : velmora::test::lend(&library);
}
extern "C" udev* udev_unref(udev* library) {
    return velmora::test::takeBack(library);
}
extern "C" udev_enumerate* udev_enumerate_new(udev*) {
    static udev_enumerate listing;
    udevTree().listed.clear();
    return velmora::test::FailingCall::reason("udev_enumerate_new") ? nullptr : velmora::test::lend(&listing);
}
extern "C" udev_enumerate* udev_enumerate_unref(udev_enumerate* listing) {
    return velmora::test::takeBack(listing);
}
extern "C" int udev_enumerate_add_match_subsystem(udev_enumerate*, const char* subsystem) {
    for (const udev_device& device : udevTree().devices) {
        if (device.subsystem == subsystem) {
            velmora::test::append(udevTree().listed, device.path);
        }
    }
    for (const std::string& path : udevTree().pulled) {
        velmora::test::append(udevTree().listed, path);
    }
    return -velmora::test::FailingCall::reason("udev_enumerate_add_match_subsystem").value_or(0);
}
extern "C" int udev_enumerate_scan_devices(udev_enumerate*) {
    return -velmora::test::FailingCall::reason("udev_enumerate_scan_devices").value_or(0);
}
extern "C" udev_list_entry* udev_enumerate_get_list_entry(udev_enumerate*) {
    return udevTree().listed.empty() ? nullptr : &udevTree().listed.front();
}
extern "C" udev_list_entry* udev_list_entry_get_next(udev_list_entry* entry) {
    return entry->next;
}
extern "C" const char* udev_list_entry_get_name(udev_list_entry* entry) {
    return entry->name.c_str();
}
extern "C" udev_device* udev_device_new_from_syspath(udev*, const char* path) {
    for (udev_device& device : udevTree().devices) {
        if (device.path == path) {
            return velmora::test::lend(&device);
        }
    }
    return nullptr;
}
extern "C" udev_device* udev_device_unref(udev_device* device) {
    return velmora::test::takeBack(device);
}
extern "C" udev_device* udev_device_get_parent(udev_device* device) {
    return device->parent;
}
extern "C" udev_device* udev_device_get_parent_with_subsystem_devtype(udev_device* device,
                                                                      const char* subsystem,
                                                                      const char* type) {
    do {
        device = device->parent;
    } while (device != nullptr && (device->subsystem != subsystem || device->type != type));
    return device;
}
extern "C" const char* udev_device_get_devnode(udev_device* device) {
    return velmora::test::given(device->node);
}
extern "C" const char* udev_device_get_driver(udev_device* device) {
    return velmora::test::given(device->driver);
}
extern "C" const char* udev_device_get_subsystem(udev_device* device) {
    return device->subsystem.c_str();
}
extern "C" const char* udev_device_get_sysname(udev_device* device) {
    return device->name.c_str();
}
extern "C" const char* udev_device_get_sysattr_value(udev_device* device, const char* name) {
    return velmora::test::given(device->attributes, name);
}
extern "C" const char* udev_device_get_property_value(udev_device* device, const char* key) {
    return velmora::test::given(device->properties, key);
}
extern "C" udev_list_entry* udev_device_get_devlinks_list_entry(udev_device* device) {
    return device->links.empty() ? nullptr : &device->links.front();
}
