// The scripts of the theme call these three functions of jQuery. Newer versions of Doxygen do not bring it along.
if (typeof $ === "undefined") {
  const whenReady = (action) => document.readyState === "loading" ?
    document.addEventListener("DOMContentLoaded", () => action()) : action();
  var $ = (subject) => {
    if (typeof subject === "function")
      return whenReady(subject);
    return {ready: whenReady, resize: (action) => subject.addEventListener("resize", action)};
  };
}
