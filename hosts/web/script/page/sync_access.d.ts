// What only a worker has, and TypeScript's library of the page lacks.

interface FileSystemSyncAccessHandle {
  write(bytes: Uint8Array<ArrayBuffer>, options: { at: number }): number;
  truncate(size: number): void;
  getSize(): number;
  flush(): void;
  close(): void;
}

interface FileSystemFileHandle {
  createSyncAccessHandle(): Promise<FileSystemSyncAccessHandle>;
}
