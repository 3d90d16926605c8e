// SPDX-License-Identifier: MIT
import { useEffect, useRef } from "preact/hooks";
import { usePage, useSend } from "../engine/Source";
import { Icon } from "./Icon";

/// What failed, until the user has read it; else what was done and can be taken back, for a while.
export function MessageBar() {
  const message = usePage("message");
  const send = useSend();
  const bar = useRef<HTMLDivElement>(null);
  const { text = "", button = "", seconds = 0, isFailure = false } = message ?? {};
  useEffect(() => {
    if (text === "" || seconds === 0) return;
    const look = () => {
      if (!bar.current?.contains(document.activeElement)) send("didDismissMessages");
      else timer = window.setTimeout(look, 1000);
    };
    let timer = window.setTimeout(look, seconds * 1000);
    return () => clearTimeout(timer);
  }, [text, seconds, send]);
  return (
    <div class="message" role={isFailure ? "alert" : "status"} ref={bar} hidden={text === ""}>
      <span class="text-body">{text}</span>
      {button !== "" && (
        <button type="button" class="text-button" onClick={() => send("didTapMessage")}>
          {!isFailure && <Icon name="undo" turns />}
          <span>{button}</span>
        </button>
      )}
    </div>
  );
}
