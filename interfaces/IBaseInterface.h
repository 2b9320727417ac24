// SPDX-License-Identifier: MIT
// The root of the plug-in interfaces.
#ifndef ORBISDIAL_IBASEINTERFACE_H
#define ORBISDIAL_IBASEINTERFACE_H

// The order of the virtual operations is part of the binary interface; never reorder them.
class IBaseInterface {
public:
    virtual ~IBaseInterface() {}

    virtual void Release() = 0;
    virtual int GetLastError() = 0;
};

#endif
