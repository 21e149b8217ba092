// Listens to the messages that windows of this thread get, and to how windows are made.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace brelt::test {

struct SentMessage {
  HWND window;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
};

// What a window was made with.
struct Creation {
  HWND window;
  std::string className;
  std::string text;
  DWORD style;
  DWORD exStyle;
  int x;
  int y;
  int width;
  int height;
  HWND parent;
  HMENU menu;  // of a child: its id
  HINSTANCE instance;
  void* data;
};

// Records while it lives. One at a time.
class MessageSpy {
 public:
  MessageSpy();
  MessageSpy(const MessageSpy&) = delete;
  MessageSpy& operator=(const MessageSpy&) = delete;
  ~MessageSpy();

  // Messages that were sent, in order.
  const std::vector<SentMessage>& sent() const { return sent_; }
  std::vector<SentMessage> To(HWND window, UINT message) const;
  const std::vector<Creation>& creations() const { return creations_; }

 private:
  static LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK OnComputerTraining(int code, WPARAM wParam, LPARAM lParam);

  std::vector<SentMessage> sent_;
  std::vector<Creation> creations_;
  HHOOK sentHook_;
  HHOOK creationHook_;
};

}  // namespace brelt::test
