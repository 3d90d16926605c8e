// SPDX-License-Identifier: MIT
import { useEffect, useState } from "preact/hooks";
import { usePage } from "../engine/Source";
import { useFiles } from "../platform/files";

/// Takes files in that are dropped on the window, where they can be brought along now.
export function FileDrop() {
  const page = usePage("import");
  const files = useFiles();
  const [isHeld, setIsHeld] = useState(false);
  const takesFiles = page?.takesFiles ?? false;
  useEffect(() => {
    const hasFiles = (event: DragEvent) => event.dataTransfer?.types.includes("Files") ?? false;
    const onOver = (event: DragEvent) => {
      if (!hasFiles(event)) return;
      event.preventDefault(); // else the browser opens the file in the place of the app
      event.dataTransfer!.dropEffect = takesFiles ? "copy" : "none";
      setIsHeld(takesFiles);
    };
    const onLeave = (event: DragEvent) => {
      if (event.relatedTarget === null) setIsHeld(false);
    };
    const onDrop = (event: DragEvent) => {
      if (!hasFiles(event)) return;
      event.preventDefault();
      setIsHeld(false);
      if (takesFiles) files.bring([...event.dataTransfer!.files]);
    };
    addEventListener("dragover", onOver);
    addEventListener("dragleave", onLeave);
    addEventListener("drop", onDrop);
    return () => {
      removeEventListener("dragover", onOver);
      removeEventListener("dragleave", onLeave);
      removeEventListener("drop", onDrop);
    };
  }, [takesFiles, files]);
  if (!isHeld) return null;
  return (
    <div class="drop">
      <p class="text-headline">{page?.dropLabel}</p>
    </div>
  );
}
