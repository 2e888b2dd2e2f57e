// Which thread of this process holds the lock file: what lets its nested calls join it.
//
// The lock of a thread belongs to the open file behind its descriptor, so that another descriptor of the same file is
// somebody else's, also in the same thread. Who holds it is kept here, for one thread at a time, since others wait.
#pragma once

namespace routerdb::lock_holder {

/// Joins the lock of the calling thread.
/// @return another descriptor of its open file, to be left and closed; -1 if the thread holds none
int join();

/// The calling thread has locked the file behind a descriptor.
void enter(int fd);

/// One that has entered or joined needs the lock no longer, whichever thread says so.
/// @return whether it was the last, which unlocks
bool leave();

/// Whether later ones join through a descriptor, which then stays open until the last has left.
bool keep(int fd);

/// What the last one does: closes the descriptor that was kept, unless it is its own.
void close_kept(int fd);

/// Whether a descriptor is one of those that have entered or joined in this process. A child does not have the lock of
/// its parent, though it has its descriptors.
bool knows(int fd);

}  // namespace routerdb::lock_holder
