"""A speech service without a sound: what a screen reader wants spoken becomes a line of a file each.

Usage: listen_speech.py SOCKET FILE. Speaks SSIP, the protocol of Speech Dispatcher, as far as its clients need it.
"""
import html
import re
import socketserver
import sys

ANSWERS = {"HISTORY": "245-1\r\n245 OK", "LIST": "249-silent\ten\tnone\r\n249 OK", "GET": "251-0\r\n251 OK"}
place, heard = sys.argv[1:]


def write(text):  # As others append to the same file.
    with open(heard, "a", encoding="utf-8") as file:
        print(text, file=file)


class Client(socketserver.StreamRequestHandler):
    def handle(self):
        while line := self.read():
            word = line.split()[0]
            if word != "SPEAK":  # Single keys and characters need no answer of their own.
                self.answer(ANSWERS.get(word, "200 OK"))
                continue
            self.answer("230 OK")
            text = "".join(iter(self.read, ".\r\n"))
            write(" ".join(html.unescape(re.sub("<[^>]*>|\ue000", "", text)).split()))
            self.answer("225-1\r\n225 OK")

    def read(self):
        return self.rfile.readline().decode()

    def answer(self, text):
        self.wfile.write(f"{text}\r\n".encode())


socketserver.ThreadingUnixStreamServer(place, Client).serve_forever()
