// The library as a host sees it: a file that is loaded by name and asked for functions by name.
#pragma once

namespace demo {

class Library {
 public:
  // Ends the program with a message if the library cannot be loaded.
  Library();

  // resolve<decltype(saxpy)>("saxpy"), with the declaration from the public headers. A missing export ends the program.
  template <class Function>
  Function* resolve(const char* name) const {
    return reinterpret_cast<Function*>(find(name));
  }

 private:
  void* find(const char* name) const;
  void* module_ = nullptr;
};

}  // namespace demo
